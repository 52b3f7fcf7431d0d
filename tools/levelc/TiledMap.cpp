// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "TiledMap.h"

#include "BodyTypes.h"
#include "Problems.h"
#include "XmlFile.h"

#include "core/Text.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace bc::levelc {

namespace {

/// Places beyond it are refused; the world takes no more either.
constexpr double maxPlace = 1.0e6;
constexpr int maxLayerDepth = 32;

using Properties = std::map<std::string, std::string>;

/// What an object inherits of the layers that it lies in.
struct LayerState {
    Point offset;
    Properties properties;
};

class Reader {
  public:
    explicit Reader(Problems& problems) : problems_(problems) {}

    TiledMap read(std::string_view xml) {
        TiXmlDocument document;
        const std::string error = parseXml(xml, document);
        if (!error.empty()) {
            problems_.add(error);
            return {};
        }
        const TiXmlElement& root = *document.RootElement();
        if (root.ValueStr() != "map") {
            problems_.add("is not a Tiled map");
            return {};
        }
        height_ = number(root, "height") * number(root, "tileheight");
        if (xml::readString(root, "orientation") != "orthogonal" || !(height_ > 0))
            problems_.add("should be an orthogonal map with a height");
        readLayers(root, {}, 0);
        return std::move(map_);
    }

  private:
    void readLayers(const TiXmlElement& parent, const LayerState& around, int depth) {
        for (const TiXmlElement* e = parent.FirstChildElement(); e != nullptr;
             e = e->NextSiblingElement()) {
            const std::string kind = e->Value();
            const std::string name = xml::readString(*e, "name");
            if (kind == "layer")
                problems_.add("layer \"" + name + "\": tiles are not part of a level");
            if (kind != "objectgroup" && kind != "group")
                continue;
            LayerState state = around;
            state.offset = state.offset + Point{number(*e, "offsetx"), number(*e, "offsety")};
            for (const auto& [property, value] : readProperties(*e))
                state.properties[property] = value;
            if (kind == "objectgroup")
                readObjects(*e, state);
            else if (depth < maxLayerDepth)
                readLayers(*e, state, depth + 1);
            else
                problems_.add("group \"" + name + "\": groups are nested too deeply");
        }
    }

    void readObjects(const TiXmlElement& layer, const LayerState& state) {
        for (const TiXmlElement* e = layer.FirstChildElement("object"); e != nullptr;
             e = e->NextSiblingElement("object")) {
            MapObject object;
            object.id = xml::readInt(*e, "id");
            object.name = xml::readString(*e, "name");
            // Called class by versions of the editor between 1.9 and 1.10.
            object.type = xml::readString(*e, xml::has(*e, "type") ? "type" : "class");
            object.properties = readProperties(*e);
            for (const auto& [property, value] : state.properties) {
                if (object.properties.emplace(property, value).second)
                    object.fromLayer[property] = true;
            }
            const std::string error = readShape(*e, state.offset, object);
            if (error.empty())
                map_.objects.push_back(std::move(object));
            else
                problems_.add(object.id, object.name, error);
        }
    }

    std::string readShape(const TiXmlElement& e, Point offset, MapObject& object) {
        if (xml::has(e, "template"))
            return "templates are not supported; detach it in the editor";
        if (xml::has(e, "gid"))
            return "is a tile; a level is made of shapes";
        if (e.FirstChildElement("text") != nullptr)
            return "is an editor text; use an object of type textbody";
        if (e.FirstChildElement("polyline") != nullptr)
            return "is an open line; close it to a polygon";
        const Point at = Point{number(e, "x"), number(e, "y")} + offset;
        const Point size{number(e, "width"), number(e, "height")};
        Polygon shape;
        if (const TiXmlElement* polygon = e.FirstChildElement("polygon")) {
            if (!readCorners(xml::readString(*polygon, "points"), shape))
                return "has a corner that is not two numbers";
        } else if (e.FirstChildElement("point") == nullptr) {
            if (!(size.x > 0) || !(size.y > 0))
                return "has no area; draw it again, or insert a point";
            shape = e.FirstChildElement("ellipse") != nullptr ? ellipse(size) : rectangle(size);
        }
        place(at, number(e, "rotation"), shape, object);
        for (const Point& p : object.corners) {
            if (!isPlace(p))
                return "lies beyond the world";
        }
        return isPlace(object.place) ? "" : "lies beyond the world";
    }

    static bool readCorners(const std::string& text, Polygon& out) {
        std::vector<std::string> corners;
        tokenise(" ", text, corners);
        for (const std::string& corner : corners) {
            const std::size_t comma = std::min(corner.find(','), corner.size());
            const auto x = parseNumber(std::string_view(corner).substr(0, comma));
            const auto y =
                parseNumber(std::string_view(corner).substr(std::min(comma + 1, corner.size())));
            if (!x || !y)
                return false;
            out.push_back({*x, *y});
        }
        return true;
    }

    static Polygon rectangle(Point size) { return {{0, 0}, {size.x, 0}, size, {0, size.y}}; }

    static Polygon ellipse(Point size) {
        Polygon out;
        for (int i = 0; i < ellipseCorners; ++i) {
            // Half a step on, so that the lowest and the highest edge lie flat.
            const double a = 2 * std::numbers::pi * (i + 0.5) / ellipseCorners;
            out.push_back({size.x / 2 * (1 + std::cos(a)), size.y / 2 * (1 + std::sin(a))});
        }
        return out;
    }

    /// Turns the shape about the object's place (degrees, clockwise) and turns y upwards.
    void place(Point at, double degrees, const Polygon& shape, MapObject& object) const {
        const double radians = degrees * std::numbers::pi / 180;
        const double c = degrees == 0 ? 1 : std::cos(radians);
        const double s = degrees == 0 ? 0 : std::sin(radians);
        object.place = {at.x, height_ - at.y};
        for (const Point& p : shape) {
            const Point turned{p.x * c - p.y * s, p.x * s + p.y * c};
            object.corners.push_back({at.x + turned.x, height_ - at.y - turned.y});
        }
    }

    static bool isPlace(Point p) { return std::abs(p.x) <= maxPlace && std::abs(p.y) <= maxPlace; }

    static Properties readProperties(const TiXmlElement& e) {
        Properties out;
        const TiXmlElement* list = e.FirstChildElement("properties");
        const TiXmlElement* p = list == nullptr ? nullptr : list->FirstChildElement("property");
        for (; p != nullptr; p = p->NextSiblingElement("property")) {
            // Texts of several lines stand inside the element.
            const char* text = p->GetText();
            out[xml::readString(*p, "name")] = xml::has(*p, "value") || text == nullptr
                                                   ? xml::readString(*p, "value")
                                                   : std::string(text);
        }
        return out;
    }

    static double number(const TiXmlElement& e, const char* name) {
        return parseNumber(xml::readString(e, name)).value_or(0);
    }

    Problems& problems_;
    TiledMap map_;
    double height_ = 0;
};

}  // namespace

TiledMap readTiledMap(std::string_view xml, Problems& problems) {
    return Reader(problems).read(xml);
}

}  // namespace bc::levelc
