// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// What the HUD shows of the player. Gameplay implements it; every answer is the state at the
/// moment of asking. Weapon ids are 1 to 11, upgrade levels 1 to 12.
class HudPlayer {
  public:
    virtual ~HudPlayer() = default;

    [[nodiscard]] virtual int hudHealth() const = 0;
    [[nodiscard]] virtual int hudArmour() const = 0;
    [[nodiscard]] virtual bool hudDead() const = 0;

    // Power-ups; the time left, in milliseconds, is only asked for while active.
    [[nodiscard]] virtual bool hudQuadActive() const = 0;
    [[nodiscard]] virtual float hudQuadMsLeft() const = 0;
    [[nodiscard]] virtual bool hudInvincibilityActive() const = 0;
    [[nodiscard]] virtual float hudInvincibilityMsLeft() const = 0;
    /// Until the swarm can be fired again; 0 or less when it is ready.
    [[nodiscard]] virtual float hudSwarmMsLeft() const = 0;

    [[nodiscard]] virtual int hudActiveWeapon() const = 0;
    [[nodiscard]] virtual bool hudOwnsWeapon(int weaponId) const = 0;
    /// Rounds for that weapon; -1 never runs out, 0 also for a weapon without ammunition type.
    [[nodiscard]] virtual int hudAmmo(int weaponId) const = 0;

    [[nodiscard]] virtual int hudUpgradeLevel() const = 0;
    [[nodiscard]] virtual int hudCash() const = 0;
    /// 0 when there is no further level.
    [[nodiscard]] virtual int hudCashToNextLevel() const = 0;
    [[nodiscard]] virtual std::string hudUpgradeTitle(int level) const = 0;

    [[nodiscard]] virtual bool hudRaceActive() const = 0;
    [[nodiscard]] virtual float hudRaceMs() const = 0;
};

/// Names of weapons by id; "invalid" for an id that is none.
class HudWeaponNames {
  public:
    virtual ~HudWeaponNames() = default;
    /// Also the base name of the weapon's picture under data/images/.
    [[nodiscard]] virtual std::string hudShortName(int weaponId) const = 0;
    [[nodiscard]] virtual std::string hudDisplayName(int weaponId) const = 0;
};

}  // namespace bc
