// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/PlayerProperties.h"

#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>
#include <utility>

namespace bc {

namespace {

constexpr UpgradeInfo upgrades[] = {
    {50, 1, 2, 1, 1, "Level 1 - Max Health 150", "Upgraded to Level 1 : Max Health Increased"},
    {75, 2, 2, 2, 1, "Level 2 - Max Armour 150", "Upgraded to Level 2 : Max Armour Increased"},
    {100, 3, 2, 2, 2, "Level 3 - Swarm Upgraded", "Upgraded to Level 3 : Swarm Upgraded"},
    {150, 4, 3, 2, 2, "Level 4 - Max Health 300", "Upgraded to Level 4 : Max Health Increased"},
    {175, 5, 3, 3, 2, "Level 5 - Max Armour 300", "Upgraded to Level 5 : Max Armour Increased"},
    {200, 6, 3, 3, 3, "Level 6 - Swarm Upgraded", "Upgraded to Level 6 : Swarm Upgraded"},
    {250, 7, 4, 3, 3, "Level 7 - Max Health 400", "Upgraded to Level 7 : Max Health Increased"},
    {275, 8, 4, 4, 3, "Level 8 - Max Armour 400", "Upgraded to Level 8 : Max Armour Increased"},
    {300, 9, 4, 4, 4, "Level 9 - Swarm Upgraded", "Upgraded to Level 9 : Swarm Upgraded"},
    {350, 10, 5, 4, 4, "Level 10 - Max Health 500", "Upgraded to Level 10 : Max Health Increased"},
    {375, 11, 5, 5, 4, "Level 11 - Max Armour 500", "Upgraded to Level 11 : Max Armour Increased"},
    {400, 12, 5, 5, 5, "Level 12 - Swarm Upgraded",
     "Upgraded to Maximum Level 12 : Swarm Upgraded"},
};

constexpr std::pair<const char*, int PlayerProperties::*> savedNumbers[] = {
    {"cash", &PlayerProperties::cash},
    {"swarmlevel", &PlayerProperties::swarmLevel},
    {"healthlevel", &PlayerProperties::healthLevel},
    {"armourlevel", &PlayerProperties::armourLevel},
    {"maxhealth", &PlayerProperties::maxHealth},
    {"maxarmour", &PlayerProperties::maxArmour},
    {"currentlevel", &PlayerProperties::currentLevel},
};

/// Maximum health or armour by track level; a level outside 1 to 5 (from a save written by hand)
/// counts as the nearest.
int trackMaximum(int level) {
    constexpr int maxima[] = {100, 150, 300, 400, 500};
    return maxima[std::clamp(level, 1, PlayerProperties::lastTrackLevel) - 1];
}

/// Takes a level below 6 over; what is not a level of the track at all leaves it.
void setTrack(int& track, int level) {
    if (level >= 1 && level <= PlayerProperties::lastTrackLevel)
        track = level;
}

}  // namespace

std::span<const UpgradeInfo> PlayerProperties::levels() {
    return upgrades;
}

void PlayerProperties::checkUpgrade() {
    const auto above = std::find_if(std::begin(upgrades), std::end(upgrades),
                                    [this](const UpgradeInfo& u) { return u.cash > cash; });
    if (above == std::begin(upgrades))
        return;
    const UpgradeInfo& reached = *std::prev(above);
    if (reached.level == currentLevel)
        return;
    currentLevel = reached.level;
    setHealthLevel(reached.healthLevel);
    setArmourLevel(reached.armourLevel);
    setSwarmLevel(reached.swarmLevel);
    upgradePending = true;
    upgradeMessage = reached.message;
}

void PlayerProperties::setHealthLevel(int level) {
    if (level == healthLevel)
        return;
    setTrack(healthLevel, level);
    maxHealth = trackMaximum(healthLevel);
}

void PlayerProperties::setArmourLevel(int level) {
    if (level == armourLevel)
        return;
    setTrack(armourLevel, level);
    maxArmour = trackMaximum(armourLevel);
}

void PlayerProperties::setSwarmLevel(int level) {
    setTrack(swarmLevel, level);
}

int PlayerProperties::cashToNextLevel() const {
    const auto above = std::find_if(std::begin(upgrades), std::end(upgrades),
                                    [this](const UpgradeInfo& u) { return u.cash > cash; });
    return above == std::end(upgrades) ? 0 : above->cash - cash;
}

std::string_view PlayerProperties::titleOfLevel(int level) {
    const auto found = std::find_if(std::begin(upgrades), std::end(upgrades),
                                    [level](const UpgradeInfo& u) { return u.level == level; });
    return found == std::end(upgrades) ? std::string_view{} : found->title;
}

void PlayerProperties::saveState(TiXmlElement& node, Digits /*digits*/) const {
    for (const auto& [name, number] : savedNumbers)
        xml::writeInt(node, name, this->*number);
}

void PlayerProperties::loadState(const TiXmlElement& node, Digits /*digits*/) {
    for (const auto& [name, number] : savedNumbers)
        this->*number = xml::readInt(node, name);
    upgradePending = false;
    upgradeMessage.clear();
}

}  // namespace bc
