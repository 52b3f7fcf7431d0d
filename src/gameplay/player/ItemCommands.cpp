// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/ItemCommands.h"

#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "gameplay/weapons/WeaponTable.h"
#include "hud/GameHUD.h"

#include <functional>
#include <optional>
#include <string>

namespace bc {

namespace {

const std::string weaponFile = "data/weapons.xml";

constexpr float quadFactor = 4;
constexpr float megaQuadFactor = 8;
constexpr int fullHealth = 100;
constexpr int fullArmour = 100;
constexpr int defaultCash = 5;
constexpr int defaultAmmo = 5;

/// Runs action with the player, if there is one.
CommandHandler withPlayer(std::function<void(Player&)> action) {
    return [action = std::move(action)] {
        if (Player* player = currentPlayer())
            action(*player);
    };
}

std::optional<int> amountArgument() {
    if (commands().argCount() < 2)
        return std::nullopt;
    return parseInt(commands().arg(1));
}

/// False for an item that is none of the fixed ones.
bool giveFixedItem(Player& player, const std::string& item, std::optional<int> amount) {
    Inventory& inventory = player.inventory;
    if (item == "all") {
        inventory.giveAllWeapons();
        inventory.giveAllAmmo();
    } else if (item == "modest") {
        inventory.giveModest();
    } else if (item == "quad") {
        player.giveQuad(quadFactor);
    } else if (item == "invincibility") {
        player.giveInvincibility(0);
    } else if (item == "megaquad") {
        player.giveQuad(megaQuadFactor);
    } else if (item == "health") {
        player.setHealth(amount.value_or(fullHealth));
    } else if (item == "armour" || item == "armor") {
        if (amount)
            player.setArmour(*amount);
        else
            player.addArmour(fullArmour);
    } else if (item == "cash") {
        player.addCash(amount.value_or(defaultCash));
    } else if (item == "ammo") {
        inventory.giveAllAmmo();
    } else if (item == "weapons") {
        inventory.giveAllWeapons();
    } else {
        return false;
    }
    return true;
}

void give(Player& player) {
    if (commands().argCount() < 1)
        return;
    const std::string item = commands().arg(0);
    const std::optional<int> amount = amountArgument();
    if (giveFixedItem(player, item, amount))
        return;
    if (const int weaponId = weaponIdOf(item); weaponId >= 0) {
        player.inventory.giveWeapon(weaponId);
    } else if (const int ammoId = ammoIdOf(item); ammoId >= 0) {
        if (amount)
            player.inventory.setAmmo(ammoId, *amount);
        else
            player.inventory.addAmmo(ammoId, defaultAmmo);
    }
}

void useItem(Player& player) {
    if (commands().argCount() < 1)
        consolePrint("Usage: useitem itemname");
    else
        player.inventory.selectByName(commands().arg(0));
}

void upgrade(Player& player) {
    if (commands().argCount() < 1)
        return;
    PlayerProperties& progress = player.progress;
    const std::string track = commands().arg(0);
    const auto levelAfter = [](int current) { return amountArgument().value_or(current + 1); };
    if (track == "swarm")
        progress.setSwarmLevel(levelAfter(progress.swarmLevel));
    else if (track == "health")
        progress.setHealthLevel(levelAfter(progress.healthLevel));
    else if (track == "armour" || track == "armor")
        progress.setArmourLevel(levelAfter(progress.armourLevel));
}

void reloadDefinitions(Player& player) {
    weaponDefinitions().load(weaponFile);
    player.inventory.applyDefinitions();
}

CommandHandler showUpgrades(bool shown) {
    return [shown] {
        if (GameHUD* hud = GameplaySingleton::instance().hud)
            hud->setUpgradeScreenShown(shown);
    };
}

}  // namespace

void registerItemCommands() {
    CommandRegistry& registry = commands();
    registry.registerCommand("give all weaps and ammo", "giveall", withPlayer([](Player& player) {
                                 player.inventory.giveAllWeapons();
                                 player.inventory.giveAllAmmo();
                             }));
    registry.registerCommand("give named items", "give", withPlayer(give));
    registry.registerCommand("use a weapon/item", "useitem", withPlayer(useItem));
    registry.registerCommand("upgrade cheat", "upgrade", withPlayer(upgrade));
    registry.registerCommand("reload weapon defs", "reloadweapondefs",
                             withPlayer(reloadDefinitions));
    registry.registerCommand("show upgrades screen", "+showupgrades", showUpgrades(true));
    registry.registerCommand("hide upgrades screen", "-showupgrades", showUpgrades(false));
}

}  // namespace bc
