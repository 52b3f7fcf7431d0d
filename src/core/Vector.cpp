// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Vector.h"

#include "core/Text.h"

#include <cmath>

namespace bc {

std::string Vector::toString(Digits digits) const {
    return formatFloat(x, digits) + ',' + formatFloat(y, digits) + ',' + formatFloat(z, digits);
}

void Vector::fromString(std::string_view text) {
    float v[3];
    const int count = parseFloats(text, ",", v, 3);
    if (count < 2)
        return;
    x = v[0];
    y = v[1];
    if (count >= 3)
        z = v[2];
}

float Vector::length() const {
    return std::sqrt(x * x + y * y + z * z + w * w);
}

void Vector::normalise() {
    const float l = length();
    if (l == 0)
        return;
    x /= l;
    y /= l;
    z /= l;
    w /= l;
}

Vector normalised(Vector v) {
    v.normalise();
    return v;
}

float distance(const Vector& a, const Vector& b) {
    return (b - a).length();
}

float planarDistanceSquared(const Vector& a, const Vector& b) {
    const float dx = b.x - a.x;
    const float dy = b.y - a.y;
    return dx * dx + dy * dy;
}

float planarDistance(const Vector& a, const Vector& b) {
    return std::sqrt(planarDistanceSquared(a, b));
}

bool pointAlongSegment(const Vector& a, const Vector& b, float t, Vector& out) {
    if (t < 0 || t > 1) {
        out = t < 0 ? a : b;
        return false;
    }
    out = a + (b - a) * t;
    return true;
}

}  // namespace bc
