// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "gameplay/weapons/MeleeWeapon.h"
#include "world/Creatable.h"

namespace bc {

/// One of the swarm that the player releases (type "swarmmember"): hunts the enemies around for a
/// quarter of a minute, and keeps near the player while there are none.
class SwarmMember final : public Creatable<SwarmMember, GameBody> {
  public:
    /// Upgrade levels of the swarm.
    static constexpr int levels = 5;

    SwarmMember();
    void fields(BodyFields& f) override;

    void makeDefaultShape() override;
    [[nodiscard]] bool seesPastPlayer() const override { return true; }
    void onThink(float dt) override;

    /// The weapon's damage and the health that go with the player's swarm level.
    virtual void applySwarmLevel();

    /// Puts a new one into the world, bound to the shooter.
    static void release(GameBody& shooter, const Vector& position, const Vector& velocity);

    /// Milliseconds; deathTime is the level time at which it is over.
    float lifetime = 15000;
    MeleeWeapon weapon;

  private:
    void hunt(const GameBody& enemy);
    void followPlayer();
};

}  // namespace bc
