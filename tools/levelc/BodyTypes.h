// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include "world/TypeNotes.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bc::levelc {

/// Where a parameter ends up.
enum class ParamPlace {
    Level,      ///< attribute of the object's params in the level file
    Drawing,    ///< used up by the compiler
    Attribute,  ///< custom attribute, read by the body's class
};

struct Param {
    std::string name;
    ParamKind kind = ParamKind::text;
    /// Of a choice: name of the list, and the list.
    std::string choiceName;
    std::vector<std::string> choices;
    ParamPlace place = ParamPlace::Attribute;
    /// Written where nothing is set; without it the game's own default holds.
    std::optional<std::string> defaultText;
    /// The game's own default, as the editor writes it.
    std::string realDefault;
    bool required = false;
    /// Every type has it.
    bool common = false;
    std::string doc;
};

struct BodyType {
    std::string name;
    std::string use;
    std::string doc;
    /// The box, in world units, that an object drawn as a point becomes.
    std::optional<Point> size;
    /// Keeps no state, so that one object may become several bodies.
    bool canBeCut = false;
    /// Only the game makes such bodies.
    bool runtimeOnly = false;
    /// All that can be set: the common ones first, with this type's defaults.
    std::vector<Param> params;

    [[nodiscard]] const Param* find(std::string_view param) const;
};

/// A purpose of body types; groups them in the documentation and colours them in the editor.
struct BodyUse {
    std::string name;
    /// "#rrggbb"
    std::string colour;
    std::string doc;
};

/// What a level may hold: the game's own table of body types, with the parameters that their
/// classes declare, and those by which this compiler dresses objects.
class BodyTypes {
  public:
    /// Asks the game's classes.
    BodyTypes();

    [[nodiscard]] const BodyType* find(std::string_view name) const;
    /// In the order of the game's table; plain geometry first.
    [[nodiscard]] const std::vector<BodyType>& types() const { return types_; }
    [[nodiscard]] const std::vector<BodyUse>& uses() const { return uses_; }
    [[nodiscard]] const BodyUse* findUse(std::string_view name) const;
    /// The lists of choices by name.
    [[nodiscard]] const std::map<std::string, std::vector<std::string>>& choices() const {
        return choices_;
    }
    /// The parameters that every type has, with their general defaults.
    [[nodiscard]] const std::vector<Param>& commonParams() const { return common_; }

    /// Empty when text is a value of the parameter's kind, else what it should be. Names of other
    /// things (objects, files) are not looked up here.
    [[nodiscard]] static std::string checkText(const Param& param, const std::string& text);

  private:
    std::vector<BodyType> types_;
    std::vector<BodyUse> uses_;
    std::map<std::string, std::vector<std::string>> choices_;
    std::vector<Param> common_;
};

/// The number that the whole text is; nothing for other texts and for what is not finite.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);
/// The editor's colour text, "#rrggbb" or "#aarrggbb", as the game writes it: "r,g,b,a". Nothing
/// for other texts.
[[nodiscard]] std::optional<std::string> gameColour(const std::string& text);

}  // namespace bc::levelc
