// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "app/ScriptRunner.h"

#include "app/EventPump.h"
#include "app/EventRouter.h"
#include "app/Subsystems.h"
#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "gameplay/player/GameplayInput.h"

#include <cstdio>

namespace bc {

void ScriptRunner::load(const std::string& path) {
    if (path.empty())
        return;
    std::string error;
    if (script_.load(path, error))
        return;
    const std::string message = "Script " + path + ": " + error;
    logLine(message);
    std::fprintf(stderr, "brightclash: %s\n", message.c_str());
}

void ScriptRunner::runDue(std::uint32_t pass) {
    script_.runDue(pass, [this](const std::string& line) { runLine(line); });
}

void ScriptRunner::runLine(const std::string& line) {
    if (line[0] != '@') {
        commands().execute(line);
        return;
    }
    const auto symOf = [this](const std::string& name) {
        return subsystems_.input().findKey(name).value_or(-1);
    };
    const GameplayInput& input = subsystems_.gameInput();
    pump_.cursorIsAt(static_cast<int>(input.mouseX), static_cast<int>(input.mouseY));
    if (!pump_.inject(line, symOf))
        logLine("Script: unknown event: " + line);
    router_.pumpEvents();
}

}  // namespace bc
