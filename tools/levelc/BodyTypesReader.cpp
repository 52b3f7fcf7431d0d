// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "BodyTypesReader.h"

#include "XmlFile.h"

#include "core/Text.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>
#include <array>
#include <utility>

namespace bc::levelc {

namespace {

constexpr std::array<std::pair<const char*, ParamType>, 17> typeNames{{
    {"text", ParamType::Text},
    {"int", ParamType::Int},
    {"float", ParamType::Float},
    {"bool", ParamType::Bool},
    {"vector", ParamType::Vector},
    {"colour", ParamType::Colour},
    {"texture", ParamType::Texture},
    {"sound", ParamType::Sound},
    {"particle", ParamType::Particle},
    {"sky", ParamType::Sky},
    {"skies", ParamType::Skies},
    {"map", ParamType::Map},
    {"cutscene", ParamType::Cutscene},
    {"wave", ParamType::Wave},
    {"bodytype", ParamType::BodyTypeName},
    {"id", ParamType::Id},
    {"ids", ParamType::Ids},
}};

/// Attributes of a type element that are no defaults.
constexpr std::array<const char*, 8> ownAttributes{"name", "class", "use",   "doc",
                                                   "size", "cut",   "group", "place"};

/// Parameters of these groups do not become custom attributes.
ParamPlace placeOfGroup(const std::string& name) {
    if (name == "level")
        return ParamPlace::Level;
    return name == "drawing" ? ParamPlace::Drawing : ParamPlace::Attribute;
}

}  // namespace

std::string BodyTypesReader::read(std::string_view xml) {
    TiXmlDocument document;
    std::string error = parseXml(xml, document);
    if (!error.empty())
        return error;
    const TiXmlElement* e = document.RootElement()->FirstChildElement();
    for (; e != nullptr && error.empty(); e = e->NextSiblingElement()) {
        const std::string kind = e->Value();
        if (kind == "use")
            error = readUse(*e);
        else if (kind == "enum")
            error = readEnum(*e);
        else if (kind == "group")
            error = readGroup(*e);
        else if (kind == "type")
            error = readType(*e);
        else
            error = "unknown element";
        if (!error.empty())
            error.insert(0, kind + " \"" + xml::readString(*e, "name") + "\": ");
    }
    types_.common_ = groups_["base"];
    return error;
}

std::string BodyTypesReader::readUse(const TiXmlElement& e) {
    BodyUse use{xml::readString(e, "name"), xml::readString(e, "colour"),
                xml::readString(e, "doc")};
    if (!gameColour(use.colour))
        return "colour should be #rrggbb";
    types_.uses_.push_back(std::move(use));
    return {};
}

std::string BodyTypesReader::readEnum(const TiXmlElement& e) {
    std::vector<std::string> values;
    tokenise(",", xml::readString(e, "values"), values);
    if (values.empty())
        return "has no values";
    types_.enums_[xml::readString(e, "name")] = std::move(values);
    return {};
}

std::string BodyTypesReader::readGroup(const TiXmlElement& e) {
    const std::string name = xml::readString(e, "name");
    std::vector<std::string> below;
    tokenise(",", xml::readString(e, "on"), below);
    std::vector<Param> params;
    for (const std::string& group : below) {
        if (groups_.count(group) == 0)
            return "builds on an unknown group, " + group;
        params.insert(params.end(), groups_[group].begin(), groups_[group].end());
    }
    std::string error = readParams(e, placeOfGroup(name), params);
    groups_[name] = std::move(params);
    return error;
}

std::string BodyTypesReader::readType(const TiXmlElement& e) {
    BodyType type;
    type.name = xml::readString(e, "name");
    type.className = xml::readString(e, "class");
    type.use = xml::readString(e, "use");
    type.doc = xml::readString(e, "doc");
    type.canBeCut = xml::readBool(e, "cut");
    type.runtimeOnly = xml::readString(e, "place") == "runtime";
    if (type.name.empty() || type.className.empty() || type.doc.empty())
        return "needs name, class and doc";
    if (types_.find(type.name) != nullptr)
        return "stands there twice";
    if (types_.findUse(type.use) == nullptr)
        return "has an unknown use, " + type.use;
    if (xml::has(e, "size")) {
        float size[2] = {};
        if (parseFloats(xml::readString(e, "size"), " ", size, 2) != 2)
            return "size should be two numbers";
        type.size = Point{size[0], size[1]};
    }
    const std::string group = xml::has(e, "group") ? xml::readString(e, "group") : "base";
    if (groups_.count(group) == 0)
        return "has an unknown group, " + group;
    type.params = groups_[group];
    std::string error = readParams(e, ParamPlace::Attribute, type.params);
    if (error.empty())
        error = replaceDefaults(e, type);
    types_.types_.push_back(std::move(type));
    return error;
}

std::string BodyTypesReader::readParams(const TiXmlElement& e, ParamPlace place,
                                        std::vector<Param>& params) const {
    const TiXmlElement* child = e.FirstChildElement("param");
    for (; child != nullptr; child = child->NextSiblingElement("param")) {
        Param param;
        param.place = place;
        const std::string error = readParam(*child, param);
        if (!error.empty())
            return "param " + param.name + ": " + error;
        const bool twice = std::any_of(params.begin(), params.end(),
                                       [&](const Param& p) { return p.name == param.name; });
        if (twice)
            return "param " + param.name + " stands there twice";
        params.push_back(std::move(param));
    }
    return {};
}

std::string BodyTypesReader::readParam(const TiXmlElement& e, Param& param) const {
    param.name = xml::readString(e, "name");
    param.doc = xml::readString(e, "doc");
    param.required = xml::readBool(e, "required");
    const std::string type = xml::readString(e, "type");
    if (type.rfind("enum:", 0) == 0) {
        param.type = ParamType::Enum;
        param.enumName = type.substr(5);
        if (types_.enums_.count(param.enumName) == 0)
            return "unknown enum";
    } else {
        const auto* found = std::find_if(typeNames.begin(), typeNames.end(),
                                         [&](const auto& t) { return type == t.first; });
        if (found == typeNames.end())
            return "unknown type, " + type;
        param.type = found->second;
    }
    if (param.name.empty() || param.doc.empty())
        return "needs name and doc";
    if (!xml::has(e, "default"))
        return {};
    param.defaultText = xml::readString(e, "default");
    return types_.checkText(param, *param.defaultText);
}

std::string BodyTypesReader::replaceDefaults(const TiXmlElement& e, BodyType& type) const {
    for (const TiXmlAttribute* a = e.FirstAttribute(); a != nullptr; a = a->Next()) {
        const std::string name = a->Name();
        if (std::find(ownAttributes.begin(), ownAttributes.end(), name) != ownAttributes.end())
            continue;
        const auto param = std::find_if(type.params.begin(), type.params.end(),
                                        [&](const Param& p) { return p.name == name; });
        if (param == type.params.end())
            return "unknown attribute, " + name;
        param->defaultText = a->Value();
        std::string error = types_.checkText(*param, *param->defaultText);
        if (!error.empty())
            return error.insert(0, name + " ");
    }
    return {};
}

}  // namespace bc::levelc
