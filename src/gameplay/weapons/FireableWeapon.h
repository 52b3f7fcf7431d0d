// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

class TiXmlElement;

namespace bc {

class Body;
class GameBody;

/// A weapon: its timing, its numbers and what a shot does. Owned by the inventory or by an enemy.
class FireableWeapon {
  public:
    virtual ~FireableWeapon() = default;

    /// Fires from a position along aim (unit length) at the level time (ms), if it is time.
    /// shooter may be null. True when a shot was fired.
    virtual bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time);
    /// The trigger was let go.
    virtual void unfire(float time);
    [[nodiscard]] virtual bool canFire(float time) const { return time >= nextFireTime; }
    /// Ready to fire at once.
    virtual void reset() { nextFireTime = 0; }
    /// Takes the weapon's numbers from the definitions in force.
    virtual void applyDefinitions() {}
    /// The ammunition left of count after a shot.
    [[nodiscard]] virtual int ammoAfterShot(int count) const { return count - 1; }
    /// A body leaves the world: drop every pointer to it.
    virtual void onBodyRemoved(const Body& /*gone*/) {}
    virtual void dumpState(TiXmlElement& e) const;

    // Level times and durations in milliseconds.
    float nextFireTime = 0;
    float delay = 0;
    /// Speed added to what is hit.
    float knockback = 0;
    /// Points a hit, before quad damage and difficulty.
    int damage = 0;
    /// Length of an instant shot.
    float range = 8096;
    /// Sideways scatter at the end of a shot.
    float spread = 800;
    /// Held by an enemy: sounds play on a fixed channel, and blasts do not flash the screen.
    bool enemyWeapon = false;

  protected:
    FireableWeapon() = default;
    FireableWeapon(float delayMs, float kick, int points)
        : delay(delayMs), knockback(kick), damage(points) {}

    /// Every shot begins with it: false when it is not time yet, else the next shot's time is set.
    [[nodiscard]] bool beginShot(float time);
    /// The weapon's damage by this shooter's hand.
    [[nodiscard]] int damageBy(const GameBody* shooter) const;
    /// A firing sound: on the sample's own channel for the player, on enemyChannel for enemies.
    void playFiringSound(int soundId, int enemyChannel, const Vector& position) const;
};

}  // namespace bc
