// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "ObjectValues.h"

#include "AssetIndex.h"
#include "TiledMap.h"

#include "core/Text.h"

#include <algorithm>

namespace bc::levelc {

namespace {

bool anyTypeKnows(const BodyTypes& types, const std::string& param) {
    return std::any_of(types.types().begin(), types.types().end(),
                       [&](const BodyType& t) { return t.find(param) != nullptr; });
}

}  // namespace

ObjectValues::ObjectValues(const MapObject& object, const BodyType& type,
                           const Surroundings& around)
    : type_(type) {
    readSet(object, around);
    for (const Param& param : type.params) {
        if (values_.count(param.name) == 0 && param.defaultText)
            values_[param.name] = *param.defaultText;
        const auto value = values_.find(param.name);
        if (value != values_.end())
            checkValue(param, value->second, around);
        if (param.required && text(param.name).empty())
            faults_.push_back("needs the property " + param.name);
    }
    settleTexture();
    // What moves has its place to remember.
    if (number("mass") > 0 && object.properties.count("entity") == 0)
        values_["entity"] = "true";
    if (type.name == "levelchange")
        checkExit(around.assets);
}

void ObjectValues::checkExit(const AssetIndex& assets) {
    const bool cutscene = flag("iscutscene");
    const std::string& level = text("leveltarget");
    if (text(cutscene ? "cutscene" : "leveltarget").empty())
        faults_.emplace_back("leads nowhere: set leveltarget, or iscutscene and cutscene");
    else if (!cutscene && !text("targetspawn").empty() &&
             !assets.hasSpawnPoint(level, text("targetspawn")))
        faults_.push_back("property targetspawn: the map " + level + " has no spawn point " +
                          text("targetspawn"));
}

void ObjectValues::readSet(const MapObject& object, const Surroundings& around) {
    for (const auto& [name, value] : object.properties) {
        const Param* param = type_.find(name);
        const bool inherited = object.fromLayer.count(name) != 0;
        if (param == nullptr) {
            // A layer speaks to objects of many types.
            if (!inherited || !anyTypeKnows(around.types, name))
                faults_.push_back("unknown property " + name);
        } else if (param->kind != ParamKind::colour || !value.empty()) {
            // The editor writes a colour that was taken back as an empty one.
            values_[name] = value;
        }
    }
}

void ObjectValues::checkValue(const Param& param, const std::string& text,
                              const Surroundings& around) {
    std::string fault = BodyTypes::checkText(param, text);
    if (!fault.empty()) {
        faults_.push_back("property " + param.name + " " + fault + ", not \"" + text + "\"");
        return;
    }
    if (text.empty())
        return;
    fault = checkReference(param, text, around);
    if (fault.empty())
        fault = around.assets.checkFile(param.kind, text);
    if (fault.empty() && param.kind == ParamKind::wave) {
        for (const std::string& target : around.assets.waveTargets(text))
            if (around.names.count(target) == 0)
                fault.assign(text)
                    .append(" triggers ")
                    .append(target)
                    .append(", which is no object");
    }
    if (!fault.empty())
        faults_.push_back("property " + param.name + ": " + fault);
}

std::string ObjectValues::checkReference(const Param& param, const std::string& text,
                                         const Surroundings& around) {
    if (param.kind == ParamKind::bodyType) {
        const BodyType* type = around.types.find(text);
        return type != nullptr && !type->runtimeOnly ? "" : "there is no body type " + text;
    }
    std::vector<std::string> names;
    if (param.kind == ParamKind::id)
        names.push_back(text);
    else if (param.kind == ParamKind::ids)
        tokenise(",", text, names);
    for (const std::string& name : names) {
        if (around.names.count(name) == 0)
            return "there is no object named " + name;
    }
    return {};
}

/// A texture is drawn unless the object says otherwise.
void ObjectValues::settleTexture() {
    const bool hasTexture = !text("texture").empty();
    if (flag("textured") && !hasTexture)
        faults_.emplace_back("is textured but has no texture");
    values_.emplace("textured", boolText(hasTexture));
}

bool ObjectValues::has(const std::string& param) const {
    return values_.count(param) != 0;
}

const std::string& ObjectValues::text(const std::string& param) const {
    static const std::string none;
    const auto found = values_.find(param);
    return found == values_.end() ? none : found->second;
}

double ObjectValues::number(const std::string& param) const {
    return parseNumber(text(param)).value_or(0);
}

bool ObjectValues::flag(const std::string& param) const {
    return text(param) == "true";
}

std::string ObjectValues::colour(const std::string& param) const {
    return gameColour(text(param)).value_or("255,255,255,255");
}

}  // namespace bc::levelc
