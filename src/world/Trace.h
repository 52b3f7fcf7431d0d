// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <algorithm>
#include <vector>

namespace bc {

class Body;

/// A segment from start to end.
struct Ray {
    Vector start;
    Vector end;
    Vector direction;

    Ray(const Vector& from, const Vector& to) : start(from), end(to), direction(to - from) {}
};

struct TraceResult {
    /// Where along the ray, 0 at its start, 1 at its end.
    float t = 0;
    /// World units from the start.
    float distance = 0;
    Vector point;
    /// Not owned.
    Body* body = nullptr;
};

using TraceResults = std::vector<TraceResult>;

/// Nearest first; equal ones keep their order.
inline void sortByDistance(TraceResults& results) {
    std::stable_sort(results.begin(), results.end(),
                     [](const TraceResult& a, const TraceResult& b) { return a.t < b.t; });
}

}  // namespace bc
