// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "BodyTypes.h"

#include "DrawingParams.h"

#include "core/Text.h"
#include "gameplay/rules/BodyTypes.h"
#include "world/Body.h"
#include "world/TypeDescription.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <utility>

namespace bc::levelc {

namespace {

template <class Named>
const Named* findNamed(const std::vector<Named>& list, std::string_view name) {
    const auto found =
        std::find_if(list.begin(), list.end(), [&](const Named& n) { return n.name == name; });
    return found == list.end() ? nullptr : &*found;
}

bool isInteger(const std::string& text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

bool isVector(const std::string& text) {
    std::vector<std::string> parts;
    tokenise(",", text, parts);
    const auto commas = static_cast<std::size_t>(std::count(text.begin(), text.end(), ','));
    return (parts.size() == 2 || parts.size() == 3) && commas == parts.size() - 1 &&
           std::all_of(parts.begin(), parts.end(),
                       [](const std::string& part) { return parseNumber(part).has_value(); });
}

bool isPlainText(const std::string& text) {
    return std::none_of(text.begin(), text.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' && c != '\n' && c != '\t';
    });
}

Param paramOf(const ParamInfo& info) {
    Param param;
    param.name = info.name;
    param.kind = info.kind;
    param.choiceName = info.choiceName;
    param.choices = info.choices;
    param.place = info.placed ? ParamPlace::Level : ParamPlace::Attribute;
    param.realDefault = info.realDefault;
    if (!info.leftOut && !info.required)
        param.defaultText = info.levelDefault.value_or(info.realDefault);
    param.required = info.required;
    param.common = info.common;
    param.doc = info.meaning;
    return param;
}

/// Those beside the polygon, those that dress it, then the custom attributes.
std::vector<Param> paramsOf(const TypeDescription& description) {
    std::vector<Param> params;
    bool dressed = false;
    for (const ParamInfo& info : description.params) {
        if (!info.placed && !std::exchange(dressed, true)) {
            const std::vector<Param> drawing = drawingParams();
            params.insert(params.end(), drawing.begin(), drawing.end());
        }
        params.push_back(paramOf(info));
    }
    return params;
}

/// An object that does not say so is drawn with its texture if it has one.
void settleTextured(BodyType& type) {
    const Param* texture = type.find("texture");
    const bool has = texture != nullptr && !texture->defaultText.value_or("").empty();
    for (Param& param : type.params)
        if (param.name == "textured")
            param.realDefault = boolText(has);
}

BodyType describeRow(const BodyTypeRow& row) {
    const std::unique_ptr<Body> body = row.make();
    TypeDescription description = describeType(*body);
    if (row.traits != nullptr)
        row.traits(LevelNotes(&description.traits));
    BodyType type;
    type.name = row.name;
    type.use = row.use;
    type.doc = row.purpose;
    if (const auto& box = description.traits.box)
        type.size = Point{box->first, box->second};
    type.canBeCut = description.traits.canBeCut;
    type.runtimeOnly = row.use == "runtime";
    type.params = paramsOf(description);
    for (const auto& [name, text] : description.traits.defaults)
        for (Param& param : type.params)
            if (param.name == name)
                param.defaultText = text;
    settleTextured(type);
    return type;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::string> gameColour(const std::string& text) {
    if ((text.size() != 7 && text.size() != 9) || text[0] != '#')
        return std::nullopt;
    const std::string digits = (text.size() == 7 ? "ff" : "") + text.substr(1);
    int argb[4] = {};
    for (std::size_t i = 0; i < 4; ++i) {
        const char* begin = digits.data() + 2 * i;
        const auto result = std::from_chars(begin, begin + 2, argb[i], 16);
        if (result.ec != std::errc() || result.ptr != begin + 2)
            return std::nullopt;
    }
    return std::to_string(argb[1]) + "," + std::to_string(argb[2]) + "," + std::to_string(argb[3]) +
           "," + std::to_string(argb[0]);
}

const Param* BodyType::find(std::string_view param) const {
    return findNamed(params, param);
}

BodyTypes::BodyTypes() {
    for (const bc::BodyUse& use : bodyUses())
        uses_.push_back({std::string(use.name), std::string(use.colour), std::string(use.meaning)});
    types_.push_back(describeRow(plainBodyType()));
    for (const BodyTypeRow& row : bodyTypes())
        types_.push_back(describeRow(row));
    for (const BodyType& type : types_)
        for (const Param& param : type.params)
            if (param.kind == ParamKind::choice)
                choices_[param.choiceName] = param.choices;
    // The general defaults are those of plain geometry before its own are put in their place.
    common_ = paramsOf(describeType(*plainBodyType().make()));
}

const BodyType* BodyTypes::find(std::string_view name) const {
    return findNamed(types_, name);
}

const BodyUse* BodyTypes::findUse(std::string_view name) const {
    return findNamed(uses_, name);
}

std::string BodyTypes::checkText(const Param& param, const std::string& text) {
    switch (param.kind) {
        case ParamKind::integer:
            return isInteger(text) ? "" : "should be a whole number";
        case ParamKind::number:
            return parseNumber(text) ? "" : "should be a number";
        case ParamKind::boolean:
            return text == "true" || text == "false" ? "" : "should be true or false";
        case ParamKind::vector:
            return isVector(text) ? "" : "should be two or three numbers with commas between";
        case ParamKind::colour:
            return gameColour(text) ? "" : "should be a colour, #aarrggbb";
        case ParamKind::choice: {
            if (std::find(param.choices.begin(), param.choices.end(), text) != param.choices.end())
                return "";
            std::string list;
            for (const std::string& value : param.choices)
                list += (list.empty() ? "" : ", ") + value;
            return "should be one of " + list;
        }
        default:
            return isPlainText(text) ? "" : "holds control characters";
    }
}

}  // namespace bc::levelc
