// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace bc::levelc {

class Problems;

/// One object of a map, in world coordinates: a unit is a pixel of the editor, y grows upwards from
/// the lower edge of the map.
struct MapObject {
    int id = 0;
    std::string name;
    std::string type;
    /// Empty for a point.
    Polygon corners;
    /// Of a point.
    Point place;
    /// Its own properties, and those of its layer (and of the groups that this lies in) where it
    /// has none of that name.
    std::map<std::string, std::string> properties;
    /// The names among them that only a layer sets: they hold for those types that know them.
    std::map<std::string, bool> fromLayer;
};

struct TiledMap {
    std::vector<MapObject> objects;
};

/// Corners of the polygon that an ellipse becomes.
inline constexpr int ellipseCorners = 16;

/// Reads the object layers of a map of the Tiled editor. What a level cannot hold (tiles, texts,
/// open lines, templates) is a problem, with the object's name.
[[nodiscard]] TiledMap readTiledMap(std::string_view xml, Problems& problems);

}  // namespace bc::levelc
