// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Geometry.h"
#include "Level.h"

#include <array>

namespace bc::levelc {

class ObjectValues;

/// How an object's polygon is coloured and textured. It goes by the place of a corner alone, so
/// that the pieces of a cut polygon fit together.
class Surface {
  public:
    /// box: the bounds of the whole polygon.
    Surface(const ObjectValues& values, const Box& box);

    [[nodiscard]] LevelCorner corner(Point place) const;

  private:
    [[nodiscard]] std::string colourAt(Point place) const;
    [[nodiscard]] Point textureAt(Point place) const;

    using Channels = std::array<float, 4>;

    Box box_;
    Channels near_{};
    Channels far_{};
    /// Direction from the first colour to the second one.
    Point gradient_;
    bool textured_;
    bool fits_;
    double textureSize_;
    Point textureScale_;
    Point textureShift_;
    double textureAngle_;
};

}  // namespace bc::levelc
