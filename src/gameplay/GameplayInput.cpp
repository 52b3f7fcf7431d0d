// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/GameplayInput.h"

#include "console/CommandRegistry.h"
#include "console/GameVar.h"
#include "core/Text.h"
#include "gameplay/CraftMovement.h"
#include "gameplay/GameplaySingleton.h"
#include "gameplay/Player.h"

namespace bc {

namespace {

/// The value of movemode with which the craft runs and jumps.
constexpr int platformMode = 2;

struct HeldAction {
    const char* name;
    bool ActionState::*flag;
    const char* pressHelp;
    const char* releaseHelp;
};

constexpr HeldAction heldActions[] = {
    {"moveright", &ActionState::right, "move right", "stop moving right"},
    {"moveleft", &ActionState::left, "move left", "stop moving left"},
    {"moveup", &ActionState::up, "move up", "stop moving up"},
    {"movedown", &ActionState::down, "move down or crouch", "stop moving down or stand up"},
    {"boost", &ActionState::boost, "quick burst of thrusters", "stop the quick thruster burst"},
    {"grapple", &ActionState::grapple, "fire your grappling hook",
     "release your grip on the grapple"},
    {"attack", &ActionState::attack, "fire your weapon", "stop firing your weapon"},
    {"slow", &ActionState::slow, "stop slowing down", "stop slowing down"},
};

void registerHeldAction(const HeldAction& action) {
    const auto setter = [flag = action.flag](bool value) {
        return [flag, value] { actions().*flag = value; };
    };
    commands().registerCommand(action.pressHelp, std::string("+") + action.name, setter(true));
    commands().registerCommand(action.releaseHelp, std::string("-") + action.name, setter(false));
}

/// The leading digits: "9x" is 9, "-3" is 0.
int weaponArgument(const std::string& text) {
    const bool digits = !text.empty() && text.front() >= '0' && text.front() <= '9';
    return digits ? parseInt(text) : 0;
}

CommandHandler fireById(bool held) {
    return [held] {
        actions().fireById = held;
        if (commands().argCount() >= 1)
            actions().weaponId = weaponArgument(commands().arg(0));
    };
}

/// Turns one of the player's switches over and says so.
CommandHandler toggle(bool GameBodyState::*flag, const char* name) {
    return [flag, name] {
        Player* player = GameplaySingleton::instance().player();
        if (player == nullptr)
            return;
        bool& value = player->*flag;
        value = !value;
        consolePrint(std::string(name) + (value ? " on" : " off"));
    };
}

}  // namespace

ActionState& actions() {
    static ActionState state;
    return state;
}

void GameplayInput::init() {
    GameInput::init();
    for (const HeldAction& action : heldActions)
        registerHeldAction(action);
    CommandRegistry& registry = commands();
    registry.registerCommand("fire a given weapon id", "+fire", fireById(true));
    registry.registerCommand("stop firing the weapon with id", "-fire", fireById(false));
    registry.registerCommand("change to next weapon", "nextweap",
                             [] { actions().nextWeapon = true; });
    registry.registerCommand("change to previous weapon", "prevweap",
                             [] { actions().previousWeapon = true; });
    registry.registerCommand("toggles whether the AI will see you or not", "invis",
                             toggle(&GameBodyState::noTarget, "Invisible"));
    registry.registerCommand("toggle invincibility", "god",
                             toggle(&GameBodyState::godMode, "God mode"));
    moveMode_ = vars().getVar("movemode");
}

void GameplayInput::applyMovement(Body* body, float step) {
    auto* player = dynamic_cast<Player*>(body);
    if (player == nullptr || player->dead)
        return;
    const bool platform = moveMode_ != nullptr && moveMode_->intValue() == platformMode;
    moveCraft(*player, actions(), platform, step);
}

void GameplayInput::applyFiring(Body* body) {
    auto* player = dynamic_cast<Player*>(body);
    if (player == nullptr || player->dead)
        return;
    fireGrapple(*player);
    fireWeapons(*player);
    if (actions().nextWeapon) {
        actions().nextWeapon = false;
        player->inventory.selectNext();
    }
    if (actions().previousWeapon) {
        actions().previousWeapon = false;
        player->inventory.selectPrevious();
    }
}

void GameplayInput::fireGrapple(Player& player) {
    if (actions().grapple) {
        grappleHeld_ = true;
        player.inventory.fire(&player, player.renderpos, player.aim, levelTime(), weapon::grapple);
    } else if (grappleHeld_) {
        grappleHeld_ = false;
        player.releaseGrapple();
    }
}

void GameplayInput::fireWeapons(Player& player) {
    const ActionState& held = actions();
    const float now = levelTime();
    if (held.attack) {
        player.isfiring = true;
        player.fireActiveWeapon();
    } else if (held.fireById) {
        player.isfiring = true;
        player.inventory.fire(&player, player.renderpos, player.aim, now, held.weaponId);
    } else {
        player.isfiring = false;
        // The hook stays out while its own key is held.
        if (!held.grapple || player.inventory.activeWeapon() != weapon::grapple)
            player.stopActiveWeapon();
        if (!held.grapple || held.weaponId != weapon::grapple)
            player.inventory.unfire(held.weaponId, now);
    }
}

void GameplayInput::clearActions() {
    actions() = {};
    grappleHeld_ = false;
}

}  // namespace bc
