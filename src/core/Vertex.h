// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

namespace bc {

/// A corner of a shape: its position, its colour (channels 0 to 255) and its texture coordinate.
struct Vertex : Vector {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 0;
    float u = 0;
    float v = 0;

    constexpr Vertex() = default;
    constexpr Vertex(float px, float py, float pz, float cr, float cg, float cb, float ca,
                     float tu = 0, float tv = 0)
        : Vector(px, py, pz), r(cr), g(cg), b(cb), a(ca), u(tu), v(tv) {}
};

}  // namespace bc
