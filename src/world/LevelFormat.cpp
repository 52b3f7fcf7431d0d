// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/LevelFormat.h"

#include "core/Log.h"
#include "core/Text.h"
#include "resources/XmlAttributes.h"
#include "world/BodyFactory.h"
#include "world/StateVisitors.h"

#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace bc::levelformat {

namespace {

constexpr const char* shapeAttribute = "shape";
constexpr const char* radiusAttribute = "radius";

/// Not "nan", "inf" or a number that overflows; what is no number at all reads as 0.
bool isFiniteText(const std::string& token) {
    return std::isfinite(std::strtof(token.c_str(), nullptr));
}

/// A corner's place; nothing when it is no place in any level. Malformed text reads as the origin.
std::optional<Vector> readOrigin(const std::string& text) {
    std::vector<std::string> tokens;
    tokenise(",", text, tokens);
    if (tokens.size() < 2)
        return Vector();
    if (!std::all_of(tokens.begin(), tokens.begin() + 2, isFiniteText))
        return std::nullopt;
    Vector origin;
    origin.fromString(text);
    const auto isFar = [](float c) { return std::fabs(c) > Body::maxCoordinate; };
    if (isFar(origin.x) || isFar(origin.y) || isFar(origin.z))
        return std::nullopt;
    return origin;
}

/// Empty, or why the body is refused.
std::string readCorners(Body& body, const TiXmlElement& e, Digits digits) {
    int count = 0;
    // A polygon that its class gave it is not added to.
    if (e.FirstChildElement("verts") != nullptr)
        body.clearGeometry();
    for (const TiXmlElement* verts = e.FirstChildElement("verts"); verts != nullptr;
         verts = verts->NextSiblingElement("verts"))
        for (const TiXmlElement* v = verts->FirstChildElement(); v != nullptr;
             v = v->NextSiblingElement()) {
            if (++count > maxCorners)
                return "more than " + std::to_string(maxCorners) + " corners";
            const std::string text = xml::readString(*v, "origin");
            const std::optional<Vector> origin = readOrigin(text);
            if (!origin)
                return "corner at " + text;
            body.addWorldVertex(origin->x, origin->y, origin->z);
            RGBAColour colour;
            xml::readValue(*v, "colour", colour, digits);
            body.colours.push_back(colour);
            if (xml::has(*v, "texcoords")) {
                TexCoord coord;
                xml::readValue(*v, "texcoords", coord, digits);
                body.texCoords.push_back(coord);
            }
        }
    return {};
}

void normaliseTexCoords(std::vector<TexCoord>& coords) {
    if (coords.empty())
        return;
    TexCoord least = coords.front();
    for (const TexCoord& coord : coords) {
        least.u = std::min(least.u, coord.u);
        least.v = std::min(least.v, coord.v);
    }
    for (TexCoord& coord : coords) {
        coord.u -= least.u;
        coord.v -= least.v;
    }
}

void readAttributes(Body& body, const TiXmlElement& e) {
    for (const TiXmlElement* list = e.FirstChildElement("attributes"); list != nullptr;
         list = list->NextSiblingElement("attributes"))
        for (const TiXmlElement* a = list->FirstChildElement(); a != nullptr;
             a = a->NextSiblingElement())
            body.customAttributes[xml::readString(*a, "name")] = xml::readString(*a, "value");
    body.applyAttributes(body.customAttributes);
}

TiXmlElement* appendChild(TiXmlElement& parent, const char* name) {
    return parent.LinkEndChild(new TiXmlElement(name))->ToElement();
}

}  // namespace

std::unique_ptr<Body> readBody(BodyCreator& factory, const TiXmlElement& e, bool skipEntities,
                               Digits digits) {
    std::unique_ptr<Body> body = factory.create(xml::readString(e, "type"));
    body->id = xml::readString(e, "idname");
    if (const TiXmlElement* params = e.FirstChildElement("params")) {
        PlacedReader reader(*params, digits);
        body->fields(reader);
        if (skipEntities && body->entity)
            return nullptr;
    }
    if (const std::string reason = readCorners(*body, e, digits); !reason.empty()) {
        logLine("Refused body " + body->id + " of type " + body->type + ": " + reason);
        return nullptr;
    }
    if (body->normalisedTexCoords)
        normaliseTexCoords(body->texCoords);
    readAttributes(*body, e);
    body->setPosition(body->centroid());
    body->placed = true;
    body->makeLocalVertices();
    if (body->usesDefaultShape) {
        body->clearGeometry();
        body->makeDefaultShape();
    }
    body->updateGeometry();
    body->computeBounds();
    return body;
}

void writeShape(const Body& body, TiXmlElement& custom) {
    if (body.usesDefaultShape || body.localVertices.empty())
        return;
    std::string corners;
    for (const Vector& corner : body.localVertices)
        corners +=
            formatFloat(corner.x, Digits::exact) + ',' + formatFloat(corner.y, Digits::exact) + ';';
    xml::writeString(custom, shapeAttribute, corners);
    xml::writeString(custom, radiusAttribute, formatFloat(body.radius, Digits::exact));
}

void readShape(Body& body, const TiXmlElement& custom) {
    if (body.usesDefaultShape)
        return;
    const float angle = std::exchange(body.angle, 0.0F);
    std::vector<std::string> corners;
    tokenise(";", xml::readString(custom, shapeAttribute), corners);
    if (corners.size() != body.localVertices.size())
        return;
    std::vector<Vector> read(corners.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        read[i].fromString(corners[i]);
        if (std::fabs(read[i].x) > Body::maxCoordinate ||
            std::fabs(read[i].y) > Body::maxCoordinate)
            return;
    }
    body.localVertices = std::move(read);
    body.angle = angle;
    // It never shrinks: what the rounded corners gave it goes.
    body.radius = std::clamp(xml::readFloat(custom, radiusAttribute, Digits::exact), 0.0F,
                             Body::maxCoordinate);
}

TiXmlElement* writeBody(const Body& body, TiXmlElement& parent, Digits digits) {
    TiXmlElement* p = appendChild(parent, "P");
    xml::writeString(*p, "idname", body.id);
    xml::writeString(*p, "type", body.type);

    PlacedWriter writer(*appendChild(*p, "params"), digits);
    // A visitor that writes changes nothing.
    const_cast<Body&>(body).fields(writer);

    TiXmlElement& verts = *appendChild(*p, "verts");
    const std::vector<Vector>& corners = body.worldVertices();
    for (std::size_t i = 0; i < corners.size(); ++i) {
        TiXmlElement& v = *appendChild(verts, "v");
        xml::writeValue(v, "origin", corners[i], digits);
        if (i < body.colours.size())
            xml::writeValue(v, "colour", body.colours[i], digits);
        if (i < body.texCoords.size())
            xml::writeValue(v, "texcoords", body.texCoords[i], digits);
    }

    TiXmlElement& attributes = *appendChild(*p, "attributes");
    for (const auto& [name, value] : body.customAttributes) {
        TiXmlElement& a = *appendChild(attributes, "a");
        xml::writeString(a, "name", name);
        xml::writeString(a, "value", value);
    }
    body.saveState(*appendChild(*p, "custom"), digits);
    return p;
}

}  // namespace bc::levelformat
