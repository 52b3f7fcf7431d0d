// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/TypeDescription.h"

#include "core/Text.h"
#include "world/Body.h"
#include "world/BodyFields.h"

#include <algorithm>
#include <deque>

namespace bc {

namespace {

ParamKind kindOf(const bool&) {
    return ParamKind::boolean;
}
ParamKind kindOf(const int&) {
    return ParamKind::integer;
}
ParamKind kindOf(const float&) {
    return ParamKind::number;
}
ParamKind kindOf(const std::string&) {
    return ParamKind::text;
}
ParamKind kindOf(const Vector&) {
    return ParamKind::vector;
}
ParamKind kindOf(const RGBAColour&) {
    return ParamKind::colour;
}

std::string textOf(bool value) {
    return boolText(value);
}
std::string textOf(int value) {
    return std::to_string(value);
}
std::string textOf(float value) {
    return formatFloat(value);
}
std::string textOf(const std::string& value) {
    return value;
}
template <class Value>
std::string textOf(const Value& value) {
    return value.toString();
}

class Describer final : public BodyFields {
  public:
    LevelTraits traits;
    // A deque, since notes hold pointers to what they add to.
    std::deque<ParamInfo> params;
    std::vector<std::string> saved;
    std::vector<std::string> shownNames;

  protected:
    LevelTraits* onLevel() override { return &traits; }
    Visit onParam(const Declared& param) override { return {Outcome::none, &add(param)}; }
    Visit onPlaced(const Declared& param) override {
        ParamInfo& info = add(param);
        info.placed = info.common = true;
        return {Outcome::none, &info};
    }
    Outcome onSaved(const char* name, Ref /*value*/, bool /*wanted*/) override {
        saved.emplace_back(name);
        return Outcome::none;
    }
    [[nodiscard]] bool wantsShown() const override { return true; }
    void onShown(const char* name, Ref /*value*/) override { shownNames.emplace_back(name); }

  private:
    ParamInfo& add(const Declared& param) {
        ParamInfo& info = params.emplace_back();
        info.name = param.name;
        info.meaning = param.meaning;
        std::visit(
            [&info](const auto* field) {
                info.kind = kindOf(*field);
                info.realDefault = textOf(*field);
            },
            param.value);
        return info;
    }
};

}  // namespace

TypeDescription describeType(Body& prototype) {
    Describer describer;
    prototype.fields(describer);
    TypeDescription result{std::move(describer.traits),
                           {describer.params.begin(), describer.params.end()},
                           std::move(describer.saved),
                           std::move(describer.shownNames)};
    std::erase_if(result.params, [](const ParamInfo& info) { return info.hidden; });
    std::stable_sort(result.params.begin(), result.params.end(),
                     [](const ParamInfo& a, const ParamInfo& b) {
                         return a.placed != b.placed ? a.placed : a.rank < b.rank;
                     });
    // What replaces its polygon by a default shape is drawn as a point.
    if (!result.traits.box && prototype.usesDefaultShape)
        result.traits.box = {prototype.defaultWidth, prototype.defaultHeight};
    return result;
}

}  // namespace bc
