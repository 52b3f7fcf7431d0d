// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "command/CommandRegistry.h"

#include "command/ConsoleColours.h"
#include "command/ConsoleOutput.h"
#include "core/Log.h"
#include "core/Text.h"
#include "resources/ResourceManager.h"

#include <utility>

namespace bc {

namespace {

/// Limits for scripts that run other scripts: how deeply they may be nested, and how many may run
/// because of one command. Without the second, scripts that each run several others would keep the
/// game busy for hours within 16 levels.
constexpr int maxScriptDepth = 16;
constexpr int maxScriptRuns = 1024;

/// Writes a line to the log and to the console.
void report(const std::string& line) {
    logLine(line);
    consolePrint(line);
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\n";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

void listCommands(const CommandRegistry& registry) {
    const std::string prefix = registry.arg(0);
    consolePrintColoured("    Command Listings", colours::gold);
    consolePrintColoured("    cmdname : description", colours::white);
    int count = 0;
    for (const auto& [name, command] : registry.all()) {
        if (!name.starts_with(prefix))
            continue;
        consolePrint("    " + name + " : " + command->description);
        ++count;
    }
    consolePrintColoured("    Found " + std::to_string(count) + " Commands", colours::gold);
}

}  // namespace

void CommandRegistry::registerCommand(std::string_view description, std::string_view name,
                                      CommandHandler handler) {
    std::unique_ptr<GameCommand>& slot = commands_[lowerCase(name)];
    if (slot)
        return;
    slot = std::make_unique<GameCommand>();
    slot->name = lowerCase(name);
    slot->description = description;
    slot->handler = std::move(handler);
}

GameCommand* CommandRegistry::findCommand(std::string_view name) {
    const auto found = commands_.find(lowerCase(name));
    return found != commands_.end() ? found->second.get() : nullptr;
}

void CommandRegistry::execute(std::string_view text) {
    buffer_ += text;
    executeBuffer();
}

void CommandRegistry::executeBuffer() {
    // The buffer is emptied before anything runs, because a handler may fill and execute it, too.
    const std::string whole = std::exchange(buffer_, {});
    const std::string_view line = trimmed(whole);
    // A semicolon does not end a bind command, so that a key can be bound to several commands.
    const bool isBind = line.starts_with("bind ");

    std::string current;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::string_view pair = line.substr(i, 2);
        if (pair == "//")
            break;
        if (pair == "/*") {
            // The search starts at the star: "/*/" is a complete comment.
            const std::size_t end = line.find("*/", i + 1);
            if (end == std::string_view::npos)
                break;
            i = end + 2;
            if (i >= line.size())
                break;
            // The character after the comment is taken as it is; it does not start another comment.
        }
        if (line[i] == ';' && !isBind) {
            executeCommand(current);
            current.clear();
        } else {
            current += line[i];
        }
    }
    executeCommand(current);
}

void CommandRegistry::executeCommand(const std::string& text) {
    if (text.empty())
        return;
    std::vector<std::string> words;
    tokenise(" ", text, words);
    std::string name;
    if (!words.empty()) {
        name = std::move(words.front());
        words.erase(words.begin());
    }
    // The name and arguments of the command that is running are restored afterwards, because its
    // handler may have called this function and still need them.
    std::vector<std::string> outerArgs = std::exchange(args_, std::move(words));
    std::string outerName = std::exchange(currentName_, std::move(name));

    if (const GameCommand* command = findCommand(currentName_)) {
        // A copy, because the handler may clear the registry and so delete the original.
        const CommandHandler handler = command->handler;
        if (handler)
            handler();
    } else if (!fallback_ || !fallback_(currentName_, args_)) {
        report("Unknown Command: " + currentName_);
    }
    args_ = std::move(outerArgs);
    currentName_ = std::move(outerName);
}

void CommandRegistry::clearCommands() {
    commands_.clear();
}

void CommandRegistry::registerBuiltinCommands() {
    registerCommand("list all commands", "listcmds", [this] { listCommands(*this); });
    registerCommand("execute a script file", "exec", [this] {
        if (args_.empty()) {
            consolePrint("Usage: exec <filename>");
            consolePrint("e.g.: exec config.cfg");
        } else {
            runScript(args_.front());
        }
    });
}

void CommandRegistry::runScript(const std::string& name) {
    const std::string path = "data/" + name;
    if (scriptDepth_ == 0)
        scriptRuns_ = 0;
    if (scriptDepth_ >= maxScriptDepth) {
        report("Couldn't exec " + path + ": scripts are nested deeper than " +
               std::to_string(maxScriptDepth) + " levels");
        return;
    }
    if (scriptRuns_ >= maxScriptRuns) {
        report("Couldn't exec " + path + ": more than " + std::to_string(maxScriptRuns) +
               " scripts were run by one");
        return;
    }
    const std::string content = resourceManager().loadText(path);
    if (content.empty()) {
        consolePrint("Couldn't exec " + path);
        return;
    }
    consolePrint("Found: " + path);
    std::vector<std::string> lines;
    tokenise("\n", content, lines);
    ++scriptDepth_;
    ++scriptRuns_;
    for (const std::string& line : lines) {
        buffer_.clear();
        execute(line);
    }
    --scriptDepth_;
    consolePrint("executed " + path);
}

std::string CommandRegistry::arg(int i, std::string_view fallback) const {
    return i >= 0 && i < argCount() ? args_[static_cast<std::size_t>(i)] : std::string(fallback);
}

CommandRegistry& commands() {
    static CommandRegistry instance;
    return instance;
}

void consolePrint(std::string_view text) {
    if (ConsoleOutput* output = commands().output())
        output->print(text);
}

void consolePrintColoured(std::string_view text, const RGBAColour& colour) {
    if (ConsoleOutput* output = commands().output())
        output->printColoured(text, static_cast<int>(colour.r), static_cast<int>(colour.g),
                              static_cast<int>(colour.b), static_cast<int>(colour.a));
}

}  // namespace bc
