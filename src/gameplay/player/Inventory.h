// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"
#include "core/Vector.h"
#include "gameplay/weapons/WeaponTable.h"

#include <array>
#include <memory>
#include <string_view>

class TiXmlElement;

namespace bc {

class Body;
class FireableWeapon;
class GameBody;

/// The player's weapons and ammunition, and which weapon is in hand. Part of the Player.
class Inventory {
  public:
    /// The most ammunition that is ever counted.
    static constexpr int ammoLimit = 999;

    explicit Inventory(GameBody& owner);
    ~Inventory();
    Inventory(const Inventory&) = delete;
    Inventory& operator=(const Inventory&) = delete;

    /// At the start of a level: weapons ready, the standard ones owned, the definitions in force.
    /// What the player carries stays. Makes the weapons the first time.
    void resetForLevel();
    /// At the start of an adventure: nothing but the standard weapons.
    void reset();
    /// Each weapon takes its numbers from the definitions.
    void applyDefinitions();

    /// Fires a weapon by id along aim (unit length) at the level time in milliseconds. An empty one
    /// clicks and is put away for the best other one a little later.
    void fire(GameBody* shooter, const Vector& position, const Vector& aim, float time,
              int weaponId);
    /// Lets go of the trigger; ids without a weapon are ignored.
    void unfire(int weaponId, float time);
    void unfireAll(float time);
    void selectNext();
    void selectPrevious();
    /// Takes the weapon in hand, owned or not.
    void switchTo(int weaponId);
    /// The owned weapon of that name; otherwise only shows the one in hand again.
    void selectByName(std::string_view name);
    /// Carries out the change of weapon that an empty one asked for, once it is due.
    void performDueChange(float time);

    /// Up to the maximum of its kind; infinite stays infinite.
    void addAmmo(int ammoId, int n);
    void setAmmo(int ammoId, int n);
    /// 0 for what there is none of; infiniteAmmo never runs out.
    [[nodiscard]] int ammo(int ammoId) const;
    [[nodiscard]] int maxAmmo(int ammoId) const;
    /// Rounds for a weapon; 0 for one without ammunition.
    [[nodiscard]] int ammoForWeapon(int weaponId) const;
    [[nodiscard]] bool owns(int weaponId) const;
    void giveWeapon(int weaponId);
    void giveAllWeapons();
    void giveAllAmmo();
    /// All weapons, and as much ammunition as one can carry.
    void giveModest();

    [[nodiscard]] int activeWeapon() const { return activeWeapon_; }
    /// Null for an id without a weapon, and before the first level.
    [[nodiscard]] FireableWeapon* weaponObject(int weaponId) const;

    /// Writes and reads the element "inventory" under the node.
    void saveState(TiXmlElement& node, Digits digits) const;
    void loadState(const TiXmlElement& node, Digits digits);
    void dumpState(TiXmlElement& node) const;
    void onBodyRemoved(const Body& gone);

  private:
    void createWeapons();
    void resetWeapons();
    void ownStandardWeapons();
    /// To the next owned weapon up or down, round and round.
    void step(int direction);
    void runEmpty(float time);
    [[nodiscard]] int bestLoadedWeapon() const;
    void playAtOwner(int soundId) const;

    GameBody& owner_;
    /// Indexed by weapon id and ammunition id.
    std::array<std::unique_ptr<FireableWeapon>, weapon::lastFiring + 1> weapons_;
    std::array<int, weapon::last + 1> owned_{};
    std::array<int, weapon::last> ammo_{};
    int activeWeapon_ = weapon::pistol;
    // Level times in milliseconds; a change at 0 is none.
    float nextNoAmmoSound_ = 0;
    float nextQuadFireSound_ = 0;
    float nextNoAmmoChange_ = 0;
    int pendingWeapon_ = -1;
};

}  // namespace bc
