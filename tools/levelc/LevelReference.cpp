// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "BodyTypes.h"
#include "EditorTypes.h"

#include <algorithm>

namespace bc::levelc {

namespace {

std::string typeText(const Param& param, const BodyTypes& types) {
    switch (param.type) {
        case ParamType::Text:
            return "text";
        case ParamType::Int:
            return "whole number";
        case ParamType::Float:
            return "number";
        case ParamType::Bool:
            return "true or false";
        case ParamType::Vector:
            return "x,y";
        case ParamType::Colour:
            return "colour";
        case ParamType::Texture:
            return "picture";
        case ParamType::Sound:
            return "sound";
        case ParamType::Particle:
            return "particle system";
        case ParamType::Sky:
            return "sky";
        case ParamType::Skies:
            return "skies";
        case ParamType::Map:
            return "level";
        case ParamType::Cutscene:
            return "cutscene file";
        case ParamType::Wave:
            return "wave file";
        case ParamType::BodyTypeName:
            return "body type";
        case ParamType::Id:
            return "object";
        case ParamType::Ids:
            return "objects";
        case ParamType::Enum:
            break;
    }
    std::string list;
    for (const std::string& value : types.enums().at(param.enumName))
        list += (list.empty() ? "" : ", ") + value;
    return list;
}

std::string defaultText(const Param& param) {
    if (param.required)
        return "must be set";
    if (!param.defaultText)
        return "";
    return param.defaultText->empty() ? "none" : "`" + *param.defaultText + "`";
}

std::string table(const std::vector<Param>& params, const BodyTypes& types) {
    std::string out = "| property | value | default | |\n| --- | --- | --- | --- |\n";
    for (const Param& param : params)
        out += "| `" + param.name + "` | " + typeText(param, types) + " | " + defaultText(param) +
               " | " + param.doc + " |\n";
    return out + "\n";
}

/// What a type has beyond the common properties.
std::vector<Param> ownParams(const BodyType& type, const BodyTypes& types) {
    std::vector<Param> out;
    const auto& common = types.commonParams();
    for (const Param& param : type.params) {
        const bool isCommon = std::any_of(common.begin(), common.end(), [&](const Param& c) {
            return c.name == param.name && c.place == param.place;
        });
        if (!isCommon)
            out.push_back(param);
    }
    return out;
}

/// The common properties whose default is another one for this type.
std::string changedDefaults(const BodyType& type, const BodyTypes& types) {
    std::string out;
    for (const Param& common : types.commonParams()) {
        const Param* param = type.find(common.name);
        if (param != nullptr && param->defaultText != common.defaultText)
            out += (out.empty() ? "" : ", ") + param->name + " `" + *param->defaultText + "`";
    }
    return out;
}

std::string typeSection(const BodyType& type, const BodyTypes& types) {
    std::string out =
        "### " + type.name + "\n\n![" + type.name + "](" + pictureOf(type) + ")\n\n" + type.doc;
    if (type.size)
        out += " A point becomes a box of " + std::to_string(static_cast<int>(type.size->x)) +
               " x " + std::to_string(static_cast<int>(type.size->y)) + ".";
    if (!type.canBeCut)
        out += " Its polygon has to be convex.";
    out += "\n\n";
    const std::string changed = changedDefaults(type, types);
    if (!changed.empty())
        out += "Defaults: " + changed + ".\n\n";
    const std::vector<Param> own = ownParams(type, types);
    return own.empty() ? out : out + table(own, types);
}

}  // namespace

std::string pictureOf(const BodyType& type) {
    return "pictures/types/" + type.name + ".png";
}

std::string levelReference(const BodyTypes& types) {
    std::string out =
        "<!-- Made by levelc from assets/maps/bodytypes.xml; edit that and run levelc --write. "
        "-->\n\n# Body types\n\nWhat an object of a level can be, by its type in the editor. "
        "Lengths are world units (one editor\npixel), times milliseconds, angles degrees. A "
        "property without a default is left to the game\nuntil it is set.\n\n"
        "## Properties of every object\n\n" +
        table(types.commonParams(), types);
    for (const BodyUse& use : types.uses()) {
        std::string sections;
        for (const BodyType& type : types.types()) {
            if (type.use == use.name && !type.runtimeOnly)
                sections += typeSection(type, types);
        }
        if (!sections.empty())
            out += "## " + use.name + "\n\n" + use.doc + "\n\n" + sections;
    }
    while (out.size() > 1 && out[out.size() - 2] == '\n')
        out.pop_back();
    return out;
}

}  // namespace bc::levelc
