// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bc::levelc {

/// What a parameter's text has to be.
enum class ParamType {
    Text,
    Int,
    Float,
    Bool,
    Vector,
    Colour,
    Texture,
    Sound,
    Particle,
    Sky,
    Skies,
    Map,
    Cutscene,
    Wave,
    BodyTypeName,
    Id,
    Ids,
    Enum,
};

/// Where a parameter ends up.
enum class ParamPlace {
    Level,      ///< attribute of the object's params in the level file
    Drawing,    ///< used up by the compiler
    Attribute,  ///< custom attribute, read by the body's class
};

struct Param {
    std::string name;
    ParamType type = ParamType::Text;
    /// Of an Enum.
    std::string enumName;
    ParamPlace place = ParamPlace::Attribute;
    /// Written where nothing is set; without it the game's own default holds.
    std::optional<std::string> defaultText;
    bool required = false;
    std::string doc;
};

struct BodyType {
    std::string name;
    std::string className;
    std::string use;
    std::string doc;
    /// The box, in world units, that an object drawn as a point becomes.
    std::optional<Point> size;
    /// Keeps no state, so that one object may become several bodies.
    bool canBeCut = false;
    /// Only the game makes such bodies.
    bool runtimeOnly = false;
    /// All that can be set: those of the groups first, with this type's defaults.
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

/// The table of body types, read from assets/maps/bodytypes.xml: what a level may hold, by which
/// levels are compiled and the editor's types and the documentation are made.
class BodyTypes {
  public:
    /// Empty when it went well; otherwise what is wrong with the table.
    [[nodiscard]] std::string read(std::string_view xml);

    [[nodiscard]] const BodyType* find(std::string_view name) const;
    /// In the order of the table, which is the order of the game's factory.
    [[nodiscard]] const std::vector<BodyType>& types() const { return types_; }
    [[nodiscard]] const std::vector<BodyUse>& uses() const { return uses_; }
    [[nodiscard]] const BodyUse* findUse(std::string_view name) const;
    /// Values of each enum, in their order.
    [[nodiscard]] const std::map<std::string, std::vector<std::string>>& enums() const {
        return enums_;
    }
    /// The parameters that every type has, with their general defaults.
    [[nodiscard]] const std::vector<Param>& commonParams() const { return common_; }

    /// Empty when text is a value of the parameter's type, else what it should be. Names of other
    /// things (objects, files) are not looked up here.
    [[nodiscard]] std::string checkText(const Param& param, const std::string& text) const;

  private:
    friend class BodyTypesReader;

    std::vector<BodyType> types_;
    std::vector<BodyUse> uses_;
    std::map<std::string, std::vector<std::string>> enums_;
    std::vector<Param> common_;
};

/// The number that the whole text is; nothing for other texts and for what is not finite.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);
/// The editor's colour text, "#rrggbb" or "#aarrggbb", as the game writes it: "r,g,b,a". Nothing
/// for other texts.
[[nodiscard]] std::optional<std::string> gameColour(const std::string& text);

}  // namespace bc::levelc
