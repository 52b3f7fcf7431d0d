// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "command/CommandRegistry.h"
#include "command/ConsoleOutput.h"
#include "command/GameVar.h"
#include "support/TestFolders.h"

#include <string>
#include <vector>

namespace bc {

/// Empty registries whose output is kept as lines; a coloured line begins with "r,g,b,a|".
class ConsoleFixture : public TestFolders, public ConsoleOutput {
  protected:
    ConsoleFixture() {
        commands().setOutput(this);
        commands().registerBuiltinCommands();
        vars().registerBuiltinCommands();
    }
    ~ConsoleFixture() override {
        commands().setOutput(nullptr);
        commands().clearCommands();
        vars().clearVars();
    }

    void print(std::string_view text) override { lines.emplace_back(text); }
    void printColoured(std::string_view text, int r, int g, int b, int a) override {
        lines.push_back(std::to_string(r) + ',' + std::to_string(g) + ',' + std::to_string(b) +
                        ',' + std::to_string(a) + '|' + std::string(text));
    }
    void printWarning(std::string_view text) override { print(text); }
    void printDebug(std::string_view text) override { print(text); }

    /// What running text prints.
    std::vector<std::string> run(const std::string& text) {
        lines.clear();
        logOf([&] { commands().execute(text); });
        return lines;
    }
    /// A command that notes its name and its arguments in calls.
    void note(const std::string& name) {
        commands().registerCommand("", name, [this, name] {
            std::string call = name;
            for (const std::string& arg : commands().args())
                call += '|' + arg;
            calls.push_back(call);
        });
    }
    static const std::string& value(const std::string& name) {
        return vars().getVar(name)->value();
    }

    std::vector<std::string> lines;
    std::vector<std::string> calls;
};

}  // namespace bc
