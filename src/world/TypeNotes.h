// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace bc {

/// What the text of a parameter stands for, for those who check levels.
enum class ParamKind {
    text,
    integer,
    number,
    boolean,
    vector,
    colour,
    texture,
    sound,
    particle,
    sky,
    /// Names of skies, separated by commas.
    skies,
    map,
    cutscene,
    wave,
    bodyType,
    /// Name of an object of the same level, and several, separated by commas.
    id,
    ids,
    /// One of ParamInfo::choices.
    choice,
};

/// A parameter of a body type as level tools and documents show it.
struct ParamInfo {
    std::string name;
    std::string meaning;
    ParamKind kind = ParamKind::text;
    /// What the class has when a level says nothing.
    std::string realDefault;
    /// What a new object of the level tools has, where that is not realDefault.
    std::optional<std::string> levelDefault;
    /// Name of the list of choices, and the list.
    std::string choiceName;
    std::vector<std::string> choices;
    /// A level has to set it.
    bool required = false;
    /// Level tools write it only where it is set.
    bool leftOut = false;
    /// It does not apply to this type.
    bool hidden = false;
    /// Stands in the element "params" of a level object, not among the custom attributes.
    bool placed = false;
    /// Every body has it.
    bool common = false;
    /// Order among the placed ones in documents and level files.
    int rank = 0;
};

/// What level tools know of a type beside its parameters.
struct LevelTraits {
    /// World units: the box that a point object becomes; nothing for types that need an area.
    std::optional<std::pair<float, float>> box;
    /// A polygon may be cut into convex pieces: the type keeps no state.
    bool canBeCut = false;
    /// Defaults of common parameters that are different for this type.
    std::vector<std::pair<std::string, std::string>> defaults;
};

/// Adds to the description of a parameter; does nothing when none is being made.
class ParamNotes {
  public:
    explicit ParamNotes(ParamInfo* info) : info_(info) {}

    ParamNotes kind(ParamKind kind) {
        if (info_ != nullptr)
            info_->kind = kind;
        return *this;
    }
    ParamNotes choices(const char* name, std::span<const std::string_view> values) {
        if (info_ != nullptr) {
            info_->kind = ParamKind::choice;
            info_->choiceName = name;
            info_->choices.assign(values.begin(), values.end());
        }
        return *this;
    }
    /// See ParamInfo::levelDefault.
    ParamNotes inLevels(std::string_view text) {
        if (info_ != nullptr)
            info_->levelDefault = text;
        return *this;
    }
    ParamNotes required() {
        if (info_ != nullptr)
            info_->required = true;
        return *this;
    }
    ParamNotes leftOut() {
        if (info_ != nullptr)
            info_->leftOut = true;
        return *this;
    }
    ParamNotes onlyIf(bool applies) {
        if (info_ != nullptr)
            info_->hidden = !applies;
        return *this;
    }
    ParamNotes rank(int rank) {
        if (info_ != nullptr)
            info_->rank = rank;
        return *this;
    }
    ParamNotes common() {
        if (info_ != nullptr)
            info_->common = true;
        return *this;
    }

  private:
    ParamInfo* info_;
};

/// Adds to the traits of a type; does nothing when no description is being made.
class LevelNotes {
  public:
    explicit LevelNotes(LevelTraits* traits) : traits_(traits) {}

    LevelNotes box(float width, float height) {
        if (traits_ != nullptr)
            traits_->box = {width, height};
        return *this;
    }
    LevelNotes canBeCut() {
        if (traits_ != nullptr)
            traits_->canBeCut = true;
        return *this;
    }
    /// A different default of a parameter that a base class declares.
    LevelNotes with(std::string_view param, std::string_view text) {
        if (traits_ != nullptr)
            traits_->defaults.emplace_back(param, text);
        return *this;
    }

  private:
    LevelTraits* traits_;
};

}  // namespace bc
