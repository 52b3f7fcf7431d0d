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

/// All console commands and the interpreter of the command language. Handlers read their
/// arguments from args() while they run.
class CommandRegistry {
  public:
    /// The first registration of a name wins.
    void registerCommand(std::string_view description, std::string_view name,
                         CommandHandler handler);
    [[nodiscard]] GameCommand* findCommand(std::string_view name);
    /// Appends text (if any) to the command buffer and executes the buffer.
    void execute(std::string_view text);
    void executeBuffer();
    void executeCommand(const std::string& text);
    void clearCommands();
    /// listcmds and exec.
    void registerBuiltinCommands();

    [[nodiscard]] const std::vector<std::string>& args() const { return args_; }
    [[nodiscard]] int argCount() const { return static_cast<int>(args_.size()); }
    /// Argument i (from 0), or fallback when there are not that many.
    [[nodiscard]] std::string arg(int i, std::string_view fallback = {}) const;

    /// Asked with the first word of a line that is no command, and the words behind it, before the
    /// line is refused; true when it was understood (variables are shown and set so).
    using Fallback =
        std::function<bool(const std::string& name, const std::vector<std::string>& args)>;
    void setFallback(Fallback fallback) { fallback_ = std::move(fallback); }

    /// Where commands print; null (the start) prints nowhere. Not owned.
    void setOutput(ConsoleOutput* output) { output_ = output; }
    [[nodiscard]] ConsoleOutput* output() const { return output_; }

    [[nodiscard]] const std::map<std::string, std::unique_ptr<GameCommand>>& all() const {
        return commands_;
    }

  private:
    void runScript(const std::string& name);

    std::map<std::string, std::unique_ptr<GameCommand>> commands_;
    std::string currentName_;
    std::vector<std::string> args_;
    std::string buffer_;
    Fallback fallback_;
    ConsoleOutput* output_ = nullptr;
    int scriptDepth_ = 0;
    int scriptRuns_ = 0;
};

/// The process-wide registry.
CommandRegistry& commands();

/// Prints a line to the registry's output, if there is one.
void consolePrint(std::string_view text);
void consolePrintColoured(std::string_view text, const RGBAColour& colour);

}  // namespace bc
