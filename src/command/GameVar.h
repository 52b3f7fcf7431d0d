// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace bc {

/// In which form writeVariables writes a variable. An untyped one is not written.
enum class VarType { untyped = 0, integer = 1, real = 2, text = 3 };

/// A named setting. Its value is a text; the numbers are what the text begins with, or 0. A
/// subsystem looks its variables up once and reads their values whenever it needs them.
class GameVar {
  public:
    void setString(std::string_view text);
    void setInt(int n);
    [[nodiscard]] int intValue() const { return intValue_; }
    [[nodiscard]] float floatValue() const { return floatValue_; }
    [[nodiscard]] const std::string& value() const { return value_; }
    /// Changes only what intValue returns, for trying a value that is not yet the player's setting.
    void setIntOnly(int n) { intValue_ = n; }

    std::string name;
    std::string description;
    VarType type = VarType::untyped;
    /// setString and setInt set it to true when the value differs from the one before (case does
    /// not count). The subsystem that reacts to the change sets it back to false.
    bool changed = false;
    /// setString and setInt call it at their end, also when the value is the same.
    std::function<void()> onChange;

  private:
    std::string value_;
    int intValue_ = 0;
    float floatValue_ = 0;
};

/// Owns all variables. Pointers to them stay valid until clearVars. Names are not case-sensitive.
class VarRegistry {
  public:
    /// Null when there is no variable with this name.
    [[nodiscard]] GameVar* findVar(std::string_view name);
    /// Creates an empty variable, with a log line, when there is none with this name.
    [[nodiscard]] GameVar* getVar(std::string_view name);
    /// Creates a variable, or sets the value of the one with this name. Only a new one gets the
    /// description.
    GameVar* createOrSet(std::string_view name, std::string_view value,
                         std::string_view description);
    /// Like createOrSet, with an empty description.
    void setVar(std::string_view name, std::string_view value);
    /// Sets a variable to 1 when its number is 0, otherwise to 0. An unknown name does nothing.
    void toggleVar(std::string_view name);
    /// Writes the section of the configuration file that sets all typed variables when executed.
    void writeVariables(std::ostream& out) const;
    void clearVars();
    /// Creates the variables that the elements of an XML file declare by the attributes name,
    /// value, description and type (int, float or string). A file that cannot be read is logged.
    void loadDeclarations(const std::string& path);
    /// Registers listvars, set and toggle, and makes the name of a variable work as a command.
    void registerBuiltinCommands();
    /// The variables by their names in lower case.
    [[nodiscard]] const std::map<std::string, std::unique_ptr<GameVar>>& all() const {
        return vars_;
    }

  private:
    std::map<std::string, std::unique_ptr<GameVar>> vars_;
};

/// The process-wide registry.
VarRegistry& vars();

}  // namespace bc
