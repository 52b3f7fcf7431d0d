// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"

#include <string>
#include <utility>
#include <vector>

namespace bc::levelc {

struct LevelCorner {
    Point place;
    /// "r,g,b,a"
    std::string colour;
    Point texture;
};

/// One body of a level, as the level file holds it. The corners are convex and run anticlockwise.
struct LevelBody {
    using Texts = std::vector<std::pair<std::string, std::string>>;

    std::string type;
    std::string name;
    Texts params;
    std::vector<LevelCorner> corners;
    Texts attributes;
};

struct Level {
    std::vector<LevelBody> bodies;
};

/// The level file, as the game's level loader reads it. The same level gives the same text.
[[nodiscard]] std::string writeLevel(const Level& level);

}  // namespace bc::levelc
