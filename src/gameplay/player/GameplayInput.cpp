// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/GameplayInput.h"

#include "command/CommandRegistry.h"
#include "core/Text.h"
#include "gameplay/player/Player.h"

#include <utility>

namespace bc {

namespace {

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
        Player* player = currentPlayer();
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
}

PlayerIntent GameplayInput::takeIntent() {
    ActionState& state = actions();
    const auto strength = [](bool held) { return held ? 1.0F : 0.0F; };
    PlayerIntent intent;
    intent.right = strength(state.right);
    intent.left = strength(state.left);
    intent.up = strength(state.up);
    intent.down = strength(state.down);
    intent.boost = state.boost;
    intent.slow = state.slow;
    intent.grapple = state.grapple;
    intent.attack = state.attack;
    intent.fireById = state.fireById;
    intent.weaponId = state.weaponId;
    intent.nextWeapon = std::exchange(state.nextWeapon, false);
    intent.previousWeapon = std::exchange(state.previousWeapon, false);
    return intent;
}

void GameplayInput::clearActions() {
    actions() = {};
}

}  // namespace bc
