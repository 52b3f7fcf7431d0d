// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "LevelCompiler.h"

#include "AssetIndex.h"
#include "BodyTypes.h"
#include "ConvexCut.h"
#include "EdgeLines.h"
#include "ObjectValues.h"
#include "Problems.h"
#include "Surface.h"
#include "TiledMap.h"

#include "core/Text.h"

#include <algorithm>
#include <optional>
#include <set>

namespace bc::levelc {

namespace {

/// The game refuses bodies with more corners and levels with more bodies.
constexpr std::size_t maxCorners = 64;
constexpr std::size_t maxBodies = 20000;
constexpr double smallestArea = 1;

constexpr const char* edgePicture = "data/images/edge.png";
/// Edges lie just before their polygon.
constexpr double edgeDepth = 0.05;

/// The game's outline runs from the first corner to the last, but not back. A last corner that lies
/// this near before the first one closes it to the eye.
constexpr double outlineGap = 0.5;

/// An object that was found to be in order.
struct Shape {
    const MapObject* object = nullptr;
    ObjectValues values;
    Polygon corners;
    /// Its number among the edged polygons.
    std::optional<std::size_t> edged;
};

class Compiler {
  public:
    Compiler(const BodyTypes& types, const AssetIndex& assets, Problems& problems)
        : types_(types), assets_(assets), problems_(problems) {}

    Level compile(const TiledMap& map) {
        std::set<std::string> names;
        for (const MapObject& object : map.objects)
            names.insert(object.name);
        names.erase("");
        std::vector<Shape> shapes;
        for (const MapObject& object : map.objects)
            readObject(object, names, shapes);
        checkStart(map);
        collectEdges(shapes);
        for (const Shape& shape : shapes)
            addBodies(shape);
        if (level_.bodies.size() > maxBodies)
            problems_.add("makes more than " + std::to_string(maxBodies) + " bodies");
        return std::move(level_);
    }

  private:
    void readObject(const MapObject& object, const std::set<std::string>& names,
                    std::vector<Shape>& shapes) {
        const BodyType* type = types_.find(object.type);
        if (type == nullptr || type->runtimeOnly) {
            fault(object, object.type.empty() ? "has no type"
                          : type == nullptr   ? "unknown type " + object.type
                                              : "only the game itself makes a " + object.type);
            return;
        }
        Shape shape{&object, ObjectValues(object, *type, {types_, assets_, names}), {}, {}};
        for (const std::string& text : shape.values.faults())
            fault(object, text);
        // Lists of targets have commas between names, and commands spaces between words.
        if (object.name.find(',') != std::string::npos)
            fault(object, "its name has a comma");
        if (type->use == "marker" && object.name.find(' ') != std::string::npos)
            fault(object, "the name of a place has a space, so that no command can go there");
        const std::string error = readPolygon(object, shape);
        if (!error.empty())
            fault(object, error);
        else
            shapes.push_back(std::move(shape));
    }

    /// Empty when the object's polygon is one that the game can hold.
    static std::string readPolygon(const MapObject& object, Shape& shape) {
        const BodyType& type = shape.values.type();
        Polygon corners = object.corners;
        if (corners.empty()) {
            if (!type.size)
                return "a " + type.name + " needs an area; draw a shape";
            const Point half = *type.size * 0.5;
            const Point at = object.place;
            corners = {at - half,
                       {at.x + half.x, at.y - half.y},
                       at + half,
                       {at.x - half.x, at.y + half.y}};
        }
        shape.corners = cleaned(corners);
        if (shape.corners.size() < 3 || signedArea(shape.corners) < smallestArea)
            return "its polygon has no area";
        if (!isSimple(shape.corners))
            return "its polygon crosses or touches itself";
        if (isConvex(shape.corners))
            return shape.corners.size() <= maxCorners ? "" : "its polygon has too many corners";
        if (!type.canBeCut || shape.values.number("mass") > 0 || shape.values.flag("entity"))
            return "its polygon has to be convex, for it cannot be cut";
        if (shape.values.flag("outlined"))
            return "an outlined polygon has to be convex; give it an edge instead";
        return {};
    }

    void checkStart(const TiledMap& map) {
        const MapObject* start = nullptr;
        for (const MapObject& object : map.objects) {
            const auto flag = object.properties.find("startpoint");
            if (object.type != "spawnpoint" || flag == object.properties.end() ||
                flag->second != "true")
                continue;
            if (start != nullptr)
                fault(object, "is a second start point beside \"" + start->name + "\"");
            start = &object;
        }
        if (start == nullptr)
            problems_.add("has no start point, a spawnpoint with startpoint set");
    }

    void collectEdges(std::vector<Shape>& shapes) {
        for (Shape& shape : shapes) {
            if (!shape.values.has("edge"))
                continue;
            shape.edged = edged_.size();
            edged_.push_back({shape.corners, std::max(shape.values.number("edgewidth"), 0.1),
                              shape.values.number("z-shift")});
        }
        const std::string error = assets_.checkFile(ParamKind::texture, edgePicture);
        if (!edged_.empty() && !error.empty())
            problems_.add(error + ", which edges are drawn with");
    }

    void addBodies(const Shape& shape) {
        const Surface surface(shape.values, boundsOf(shape.corners));
        for (Polygon& piece : cutConvex(shape.corners)) {
            if (shape.values.flag("outlined") && !shape.values.flag("textured"))
                closeOutline(piece);
            LevelBody body = makeBody(shape.values.type(), shape.object->name, shape.values);
            for (const Point& p : piece)
                body.corners.push_back(surface.corner(p));
            level_.bodies.push_back(std::move(body));
        }
        if (shape.edged)
            addEdges(shape);
    }

    static void closeOutline(Polygon& corners) {
        const Point back = corners.back() - corners.front();
        corners.push_back(corners.front() + back * std::min(outlineGap / length(back), 0.5));
    }

    static LevelBody makeBody(const BodyType& type, const std::string& name,
                              const ObjectValues& values) {
        LevelBody body;
        body.type = type.name;
        body.name = name;
        for (const Param& param : type.params) {
            if (!values.has(param.name) || param.place == ParamPlace::Drawing)
                continue;
            auto& texts = param.place == ParamPlace::Level ? body.params : body.attributes;
            texts.emplace_back(param.name, param.kind == ParamKind::colour
                                               ? values.colour(param.name)
                                               : values.text(param.name));
        }
        return body;
    }

    /// The shining edges become decoration of their own.
    void addEdges(const Shape& shape) {
        const BodyType* detail = types_.find("detail");
        MapObject object;
        object.properties = {
            {"texture", edgePicture},
            {"colour", shape.values.text("edge")},
            {"glow", shape.values.text("edgeglow")},
            {"z-shift",
             formatFloat(static_cast<float>(shape.values.number("z-shift") + edgeDepth))}};
        const ObjectValues values(object, *detail, {types_, assets_, {}});
        const std::string colour = values.colour("colour");
        for (const EdgeBand& band : edgeBands(edged_, *shape.edged)) {
            LevelBody body = makeBody(*detail, shape.object->name + "#edge", values);
            // From inside to outside the picture is run through once; along the edge it is even.
            const double v[] = {0, 1, 1, 0};
            for (std::size_t i = 0; i < band.size(); ++i)
                body.corners.push_back({band[i], colour, {i < 2 ? 0.0 : 1.0, v[i]}});
            level_.bodies.push_back(std::move(body));
        }
    }

    void fault(const MapObject& object, const std::string& text) {
        problems_.add(object.id, object.name, text);
    }

    const BodyTypes& types_;
    const AssetIndex& assets_;
    Problems& problems_;
    std::vector<EdgedPolygon> edged_;
    Level level_;
};

}  // namespace

Level compileLevel(const TiledMap& map, const BodyTypes& types, const AssetIndex& assets,
                   Problems& problems) {
    return Compiler(types, assets, problems).compile(map);
}

}  // namespace bc::levelc
