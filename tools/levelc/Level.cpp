// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Level.h"

#include <tinyxml.h>

#include <array>
#include <charconv>

namespace bc::levelc {

namespace {

/// The shortest text that reads back as the same float.
std::string number(double value) {
    std::array<char, 32> buffer{};
    const float written = static_cast<float>(value) + 0.0F;  // no negative zero
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), written).ptr;
    return {buffer.data(), end};
}

std::string pair(Point p) {
    return number(p.x) + "," + number(p.y);
}

TiXmlElement& add(TiXmlElement& parent, const char* name) {
    return *parent.LinkEndChild(new TiXmlElement(name))->ToElement();
}

void writeBody(const LevelBody& body, TiXmlElement& objects) {
    TiXmlElement& p = add(objects, "P");
    p.SetAttribute("type", body.type);
    p.SetAttribute("idname", body.name);
    TiXmlElement& params = add(p, "params");
    for (const auto& [name, value] : body.params)
        params.SetAttribute(name, value);
    TiXmlElement& verts = add(p, "verts");
    for (const LevelCorner& corner : body.corners) {
        TiXmlElement& v = add(verts, "v");
        v.SetAttribute("origin", pair(corner.place));
        v.SetAttribute("colour", corner.colour);
        v.SetAttribute("texcoords", pair(corner.texture));
    }
    if (body.attributes.empty())
        return;
    TiXmlElement& attributes = add(p, "attributes");
    for (const auto& [name, value] : body.attributes) {
        TiXmlElement& a = add(attributes, "a");
        a.SetAttribute("name", name);
        a.SetAttribute("value", value);
    }
}

}  // namespace

std::string writeLevel(const Level& level) {
    TiXmlDocument document;
    document.LinkEndChild(new TiXmlDeclaration("1.0", "UTF-8", ""));
    TiXmlElement& root = *document.LinkEndChild(new TiXmlElement("Level"))->ToElement();
    TiXmlElement& objects = add(root, "Objects");
    for (const LevelBody& body : level.bodies)
        writeBody(body, objects);
    TiXmlPrinter printer;
    printer.SetIndent(" ");
    document.Accept(&printer);
    return printer.Str();
}

}  // namespace bc::levelc
