// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "BodyTypes.h"
#include "EditorTypes.h"

#include <algorithm>
#include <iterator>

namespace bc::levelc {

namespace {

std::string typeText(const Param& param) {
    switch (param.kind) {
        case ParamKind::text:
            return "text";
        case ParamKind::integer:
            return "whole number";
        case ParamKind::number:
            return "number";
        case ParamKind::boolean:
            return "true or false";
        case ParamKind::vector:
            return "x,y";
        case ParamKind::colour:
            return "colour";
        case ParamKind::texture:
            return "picture";
        case ParamKind::sound:
            return "sound";
        case ParamKind::particle:
            return "particle system";
        case ParamKind::sky:
            return "sky";
        case ParamKind::skies:
            return "skies";
        case ParamKind::map:
            return "level";
        case ParamKind::cutscene:
            return "cutscene file";
        case ParamKind::wave:
            return "wave file";
        case ParamKind::bodyType:
            return "body type";
        case ParamKind::id:
            return "object";
        case ParamKind::ids:
            return "objects";
        case ParamKind::choice:
            break;
    }
    std::string list;
    for (const std::string& value : param.choices)
        list += (list.empty() ? "" : ", ") + value;
    return list;
}

/// The value of a new object that sets nothing.
const std::string& effectiveDefault(const Param& param) {
    return param.defaultText ? *param.defaultText : param.realDefault;
}

std::string defaultText(const Param& param) {
    if (param.required)
        return "must be set";
    if (param.kind == ParamKind::colour && !param.defaultText)
        return "none";
    const std::string& text = effectiveDefault(param);
    return text.empty() ? "none" : "`" + text + "`";
}

std::string table(const std::vector<Param>& params) {
    std::string out = "| property | value | default | |\n| --- | --- | --- | --- |\n";
    for (const Param& param : params)
        out += "| `" + param.name + "` | " + typeText(param) + " | " + defaultText(param) + " | " +
               param.doc + " |\n";
    return out + "\n";
}

/// What a type has beyond the common properties.
std::vector<Param> ownParams(const BodyType& type) {
    std::vector<Param> out;
    std::copy_if(type.params.begin(), type.params.end(), std::back_inserter(out),
                 [](const Param& param) { return !param.common; });
    return out;
}

/// The common properties whose default is another one for this type.
std::string changedDefaults(const BodyType& type, const BodyTypes& types) {
    std::string out;
    for (const Param& common : types.commonParams()) {
        const Param* param = type.find(common.name);
        if (param != nullptr && effectiveDefault(*param) != effectiveDefault(common))
            out += (out.empty() ? "" : ", ") + param->name + " `" + effectiveDefault(*param) + "`";
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
    const std::vector<Param> own = ownParams(type);
    return own.empty() ? out : out + table(own);
}

}  // namespace

std::string pictureOf(const BodyType& type) {
    return "pictures/types/" + type.name + ".png";
}

std::string levelReference(const BodyTypes& types) {
    std::string out =
        "<!-- Made by levelc from what the body classes declare; change those and run levelc "
        "--write. "
        "-->\n\n# Body types\n\nWhat an object of a level can be, by its type in the editor. "
        "Lengths are world units (one editor\npixel), times milliseconds, angles degrees. The "
        "defaults are those of an object that sets nothing.\n\n"
        "## Properties of every object\n\n" +
        table(types.commonParams());
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
