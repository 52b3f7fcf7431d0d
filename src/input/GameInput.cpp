// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "input/GameInput.h"

#include "command/CommandRegistry.h"
#include "command/ConsoleColours.h"
#include "command/GameVar.h"
#include "core/Text.h"
#include "ports/IRenderer.h"

#include <algorithm>
#include <cmath>

namespace bc {

namespace {

/// The motion times the sensitivity; 0 when the product is too large for a float.
float scaled(float motion, float sensitivity) {
    const float out = motion * sensitivity;
    return std::isfinite(out) ? out : 0.0F;
}

}  // namespace

void GameInput::init() {
    CommandRegistry& registry = commands();
    registry.registerCommand("bind a command to a key", "bind", [this] { bindCommand(); });
    registry.registerCommand("unbind commands from a key", "unbind", [this] { unbindCommand(); });
    registry.registerCommand("list all the key bindings", "listbinds",
                             [this] { listBindsCommand(); });
    sensitivity_ = vars().getVar("sensitivity");
    mouseButtonNames_ = {
        {1, "MOUSE1"}, {3, "MOUSE2"}, {2, "MOUSE3"}, {5, "MWHEELDOWN"}, {4, "MWHEELUP"}};
}

void GameInput::mouseMove(float /*x*/, float /*y*/, float relX, float relY) {
    if (sensitivity_ == nullptr || renderer_ == nullptr)
        return;
    mouseRelX = scaled(relX, sensitivity_->floatValue());
    mouseRelY = scaled(relY, sensitivity_->floatValue());
    mouseX = std::clamp(mouseX + mouseRelX, 0.0F, static_cast<float>(renderer_->getWidth()));
    mouseY = std::clamp(mouseY + mouseRelY, 0.0F, static_cast<float>(renderer_->getHeight()));
}

void GameInput::mouseDown(float /*x*/, float /*y*/, int button) {
    keyDown(-1, -1, mouseButtonName(button));
}
void GameInput::mouseUp(float /*x*/, float /*y*/, int button) {
    keyUp(-1, -1, mouseButtonName(button));
}

std::string GameInput::boundTo(std::string_view key) const {
    const auto found = bindings_.find(lowerCase(key));
    return found != bindings_.end() ? found->second : std::string();
}

void GameInput::keyDown(int /*sym*/, int /*unicode*/, const std::string& keyName) {
    const std::string command = boundTo(keyName);
    if (!command.empty())
        commands().execute(command);
}

void GameInput::keyUp(int /*sym*/, int /*unicode*/, const std::string& keyName) {
    // A copy, because the commands may change the binding.
    const std::string command = boundTo(keyName);
    std::vector<std::string> parts;
    tokenise(";", command, parts);
    for (std::string& part : parts) {
        if (part.front() != '+')
            continue;
        part.front() = '-';
        commands().execute(part);
    }
}

void GameInput::setBinding(std::string_view key, std::string_view command) {
    const std::string name = lowerCase(key);
    if (name != "unbound")
        bindings_[name] = lowerCase(command);
}

std::string GameInput::keyForCommand(const std::string& command) const {
    for (const auto& [key, bound] : bindings_) {
        if (bound == command)
            return key;
    }
    return "unbound";
}

void GameInput::writeBindings(std::ostream& out) const {
    out << "\n//key bindings\n\n";
    for (const auto& [key, command] : bindings_)
        out << "bind " << key << ' ' << command << '\n';
    out << '\n';
}

void GameInput::bindCommand() {
    const std::vector<std::string>& args = commands().args();
    if (args.empty()) {
        consolePrint("Usage: bind <key> <command>");
        consolePrint("e.g.: bind p pause");
        return;
    }
    const std::string key = lowerCase(args[0]);
    if (args.size() == 1) {
        const std::string command = boundTo(key);
        consolePrint(key + " is " + (command.empty() ? "unbound" : command));
        return;
    }
    std::string command = args[1];
    for (std::size_t i = 2; i < args.size(); ++i)
        command += ' ' + args[i];
    setBinding(key, command);
}

void GameInput::unbindCommand() {
    if (commands().argCount() < 1) {
        consolePrint("Usage: unbind <key>");
        consolePrint("e.g.: unbind p");
        return;
    }
    bindings_[lowerCase(commands().args()[0])].clear();
}

void GameInput::listBindsCommand() {
    consolePrintColoured("    Key Bindings", colours::gold);
    for (const auto& [key, command] : bindings_) {
        if (!command.empty())
            consolePrint(std::string("    ").append(key).append(" is ").append(command));
    }
}

}  // namespace bc
