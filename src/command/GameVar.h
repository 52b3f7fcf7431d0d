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

enum class VarType { untyped = 0, integer = 1, real = 2, text = 3 };

/// A named value that any subsystem binds once and reads whenever it needs it. The text is the
/// authority; both numbers follow it.
class GameVar {
  public:
    void setString(std::string_view text);
    void setInt(int n);
    [[nodiscard]] int intValue() const { return intValue_; }
    [[nodiscard]] float floatValue() const { return floatValue_; }
    [[nodiscard]] const std::string& value() const { return value_; }
    /// Puts a value in force that is not the setting: text and float keep what is configured.
    void setIntOnly(int n) { intValue_ = n; }

    std::string name;
    std::string description;
    VarType type = VarType::untyped;
    /// Set by a set operation that changed the value; cleared by the reader who acts on it.
    bool changed = false;
    /// Called after every set operation.
    std::function<void()> onChange;

  private:
    std::string value_;
    int intValue_ = 0;
    float floatValue_ = 0;
};

/// All variables by lower-case name, in byte order. Owns them; pointers stay valid until clearVars.
class VarRegistry {
  public:
    /// Null when there is none. Names are looked up in lower case everywhere.
    [[nodiscard]] GameVar* findVar(std::string_view name);
    /// Creates an empty one, with a log line, when there is none.
    [[nodiscard]] GameVar* getVar(std::string_view name);
    GameVar* createOrSet(std::string_view name, std::string_view value,
                         std::string_view description);
    void setVar(std::string_view name, std::string_view value);
    void toggleVar(std::string_view name);
    void writeVariables(std::ostream& out) const;
    void clearVars();
    /// Declares the variables of data/gamevars.xml.
    void loadDeclarations(const std::string& path);
    /// listvars, set, toggle.
    void registerBuiltinCommands();
    [[nodiscard]] const std::map<std::string, std::unique_ptr<GameVar>>& all() const {
        return vars_;
    }

  private:
    std::map<std::string, std::unique_ptr<GameVar>> vars_;
};

/// The process-wide registry.
VarRegistry& vars();

}  // namespace bc
