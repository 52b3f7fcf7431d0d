// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <span>
#include <string>
#include <string_view>

class TiXmlElement;

namespace bc {

/// One upgrade level: from how much cash on it holds and which track levels it brings.
struct UpgradeInfo {
    int cash;
    int level;
    int healthLevel;
    int armourLevel;
    int swarmLevel;
    std::string_view title;
    std::string_view message;
};

/// The player's progress over an adventure: cash and the upgrades it bought. Lives in the Player
/// and goes from level to level.
struct PlayerProperties {
    static constexpr int lastTrackLevel = 5;

    /// An upgrade happened whose message is still to be shown.
    bool upgradePending = false;
    int cash = 0;
    int swarmLevel = 1;
    int healthLevel = 1;
    int armourLevel = 1;
    int maxHealth = 100;
    int maxArmour = 100;
    /// The upgrade level reached, 0 to 12.
    int currentLevel = 0;
    std::string upgradeMessage;

    /// After every change of cash: takes over the highest level it has reached.
    void checkUpgrade();
    /// Levels above 5 leave the track's level; the maximum follows the level in any case.
    void setHealthLevel(int level);
    void setArmourLevel(int level);
    void setSwarmLevel(int level);
    /// 0 when the last threshold has been passed.
    [[nodiscard]] int cashToNextLevel() const;
    /// Empty for a level that does not exist.
    [[nodiscard]] static std::string_view titleOfLevel(int level);
    /// By rising cash.
    [[nodiscard]] static std::span<const UpgradeInfo> levels();

    void saveState(TiXmlElement& node, Digits digits) const;
    void loadState(const TiXmlElement& node, Digits digits);
    void dumpState(TiXmlElement& node) const { saveState(node, Digits::usual); }
};

}  // namespace bc
