// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bc {

class ConsoleOutput;
struct RGBAColour;

using CommandHandler = std::function<void()>;

struct GameCommand {
    std::string name;
    std::string description;
    CommandHandler handler;
};

/// All console commands, and the interpreter of the command language. In it, ";" separates
/// commands, spaces separate a command's name from its arguments, "//" starts a comment to the end
/// of the line and "/*" one to the next "*/". Names are not case-sensitive.
class CommandRegistry {
  public:
    /// Adds a command. A name that is registered already keeps its command.
    void registerCommand(std::string_view description, std::string_view name,
                         CommandHandler handler);
    /// Null when there is no command with this name.
    [[nodiscard]] GameCommand* findCommand(std::string_view name);
    /// Appends text to the command buffer and executes the buffer.
    void execute(std::string_view text);
    /// Executes the buffer as one line of commands and empties it.
    void executeBuffer();
    /// Executes one command without looking for separators and comments. When neither a command nor
    /// the fallback takes it, the log and the console say so. A blank text is an unknown command;
    /// an empty one does nothing.
    void executeCommand(const std::string& text);
    void clearCommands();
    /// Registers listcmds and exec.
    void registerBuiltinCommands();

    /// The arguments of the command whose handler is running.
    [[nodiscard]] const std::vector<std::string>& args() const { return args_; }
    [[nodiscard]] int argCount() const { return static_cast<int>(args_.size()); }
    /// Argument i (from 0), or fallback when there are fewer.
    [[nodiscard]] std::string arg(int i, std::string_view fallback = {}) const;

    /// Gets the words of each command that is not registered. Returns false when it does not know
    /// it either. The variables use this: their names show and set them.
    using Fallback =
        std::function<bool(const std::string& name, const std::vector<std::string>& args)>;
    void setFallback(Fallback fallback) { fallback_ = std::move(fallback); }

    /// Where commands print their lines; null, as at first, drops them. Not owned.
    void setOutput(ConsoleOutput* output) { output_ = output; }
    [[nodiscard]] ConsoleOutput* output() const { return output_; }

    /// The commands by their names in lower case.
    [[nodiscard]] const std::map<std::string, std::unique_ptr<GameCommand>>& all() const {
        return commands_;
    }

  private:
    /// Executes each line of the file data/name on its own.
    void runScript(const std::string& name);

    std::map<std::string, std::unique_ptr<GameCommand>> commands_;
    /// The command that is running.
    std::string currentName_;
    std::vector<std::string> args_;
    std::string buffer_;
    Fallback fallback_;
    ConsoleOutput* output_ = nullptr;
    /// Scripts that are running now, and scripts started since none was running.
    int scriptDepth_ = 0;
    int scriptRuns_ = 0;
};

/// The process-wide registry.
CommandRegistry& commands();

/// These print a line to the output of the registry, if it has one.
void consolePrint(std::string_view text);
void consolePrintColoured(std::string_view text, const RGBAColour& colour);

}  // namespace bc
