// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "EditorTypes.h"

#include "BodyTypes.h"

#include <tinyxml.h>

#include <algorithm>

namespace bc::levelc {

namespace {

std::string quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        out += c;
    }
    return out + '"';
}

/// The editor's name for the type; names of files and objects are texts to it.
std::string editorType(const Param& param) {
    switch (param.kind) {
        case ParamKind::integer:
            return "int";
        case ParamKind::number:
            return "float";
        case ParamKind::boolean:
            return "bool";
        case ParamKind::colour:
            return "color";
        default:
            return "string";
    }
}

/// What the editor shows while nothing is set. It draws no colour for the game's way of writing
/// one.
std::string shownDefault(const Param& param) {
    if (param.defaultText)
        return *param.defaultText;
    return param.required || param.kind == ParamKind::colour ? "" : param.realDefault;
}

std::string jsonValue(const Param& param) {
    const std::string text = shownDefault(param);
    const bool bare = param.kind == ParamKind::integer || param.kind == ParamKind::number ||
                      param.kind == ParamKind::boolean;
    return bare ? text : quoted(text);
}

/// The editor keeps members by name; so does the generated file, to change no more than it has to.
std::vector<const Param*> byName(const BodyType& type) {
    std::vector<const Param*> out;
    for (const Param& param : type.params)
        out.push_back(&param);
    std::sort(out.begin(), out.end(),
              [](const Param* a, const Param* b) { return a->name < b->name; });
    return out;
}

std::string enumJson(int id, const std::string& name, const std::vector<std::string>& values) {
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + quoted(value);
    return "        {\"id\": " + std::to_string(id) + ", \"name\": " + quoted(name) +
           ", \"storageType\": \"string\", \"type\": \"enum\", \"values\": [" + list +
           "], \"valuesAsFlags\": false}";
}

std::string classJson(int id, const BodyType& type, const BodyTypes& types) {
    std::string members;
    for (const Param* param : byName(type)) {
        const std::string propertyType =
            param->kind == ParamKind::choice
                ? "\"propertyType\": " + quoted(param->choiceName) + ", "
                : "";
        members += (members.empty() ? "" : ",\n") + std::string("            {\"name\": ") +
                   quoted(param->name) + ", " + propertyType +
                   "\"type\": " + quoted(editorType(*param)) + ", \"value\": " + jsonValue(*param) +
                   "}";
    }
    const std::string colour = "#ff" + types.findUse(type.use)->colour.substr(1);
    return "        {\"id\": " + std::to_string(id) + ", \"name\": " + quoted(type.name) +
           ", \"type\": \"class\", \"color\": " + quoted(colour) +
           ", \"drawFill\": true, \"useAs\": [\"property\", \"object\"], \"members\": [\n" +
           members + "]}";
}

}  // namespace

std::string tiledProject(const BodyTypes& types) {
    std::string list;
    int id = 0;
    for (const auto& [name, values] : types.choices())
        list += (list.empty() ? "" : ",\n") + enumJson(++id, name, values);
    for (const BodyType& type : types.types()) {
        if (!type.runtimeOnly)
            list += ",\n" + classJson(++id, type, types);
    }
    return "{\n    \"automappingRulesFile\": \"\",\n    \"commands\": [],\n"
           "    \"extensionsPath\": \"extensions\",\n    \"folders\": [\".\"],\n"
           "    \"objectTypesFile\": \"objecttypes.xml\",\n    \"propertyTypes\": [\n" +
           list + "\n    ]\n}\n";
}

std::string objectTypes(const BodyTypes& types) {
    TiXmlDocument document;
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    auto* root = new TiXmlElement("objecttypes");
    document.LinkEndChild(root);
    for (const BodyType& type : types.types()) {
        if (type.runtimeOnly)
            continue;
        auto* e = new TiXmlElement("objecttype");
        root->LinkEndChild(e);
        e->SetAttribute("name", type.name);
        e->SetAttribute("color", types.findUse(type.use)->colour);
        for (const Param* param : byName(type)) {
            auto* property = new TiXmlElement("property");
            e->LinkEndChild(property);
            property->SetAttribute("name", param->name);
            property->SetAttribute("type", editorType(*param));
            property->SetAttribute("default", shownDefault(*param));
        }
    }
    TiXmlPrinter printer;
    printer.SetIndent(" ");
    document.Accept(&printer);
    return printer.Str();
}

}  // namespace bc::levelc
