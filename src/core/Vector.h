// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Digits.h"

#include <string>
#include <string_view>

namespace bc {

/// A position, direction or velocity in world units (or units a second). y grows upwards; z is the
/// depth, which influences only drawing. w takes part in the arithmetic but not in the text form.
struct Vector {
    float x = 0;
    float y = 0;
    float z = 0;
    float w = 0;

    constexpr Vector() = default;
    constexpr Vector(float px, float py, float pz = 0) : x(px), y(py), z(pz) {}
    explicit Vector(std::string_view text) { fromString(text); }

    /// "x,y,z", each number as by formatFloat.
    [[nodiscard]] std::string toString(Digits digits = Digits::usual) const;
    /// Reads "x,y" (z stays) or "x,y,z". A text with fewer than two numbers changes nothing.
    void fromString(std::string_view text);

    constexpr void set(const Vector& v) { set(v.x, v.y, v.z); }
    constexpr void set(float px, float py) { set(px, py, 0); }
    constexpr void set(float px, float py, float pz) {
        x = px;
        y = py;
        z = pz;
    }
    /// Compares all four components exactly.
    [[nodiscard]] constexpr bool equals(const Vector& v) const {
        return x == v.x && y == v.y && z == v.z && w == v.w;
    }
    [[nodiscard]] constexpr bool isZero() const { return x == 0 && y == 0 && z == 0 && w == 0; }

    constexpr Vector& operator+=(const Vector& v) {
        x += v.x;
        y += v.y;
        z += v.z;
        w += v.w;
        return *this;
    }
    constexpr Vector& operator-=(const Vector& v) {
        x -= v.x;
        y -= v.y;
        z -= v.z;
        w -= v.w;
        return *this;
    }
    constexpr Vector& operator*=(float k) {
        x *= k;
        y *= k;
        z *= k;
        w *= k;
        return *this;
    }
    /// The length over all four components.
    [[nodiscard]] float length() const;
    /// Scales the vector to length 1. A zero vector stays zero.
    void normalise();
};

constexpr Vector operator+(Vector a, const Vector& b) {
    return a += b;
}
constexpr Vector operator-(Vector a, const Vector& b) {
    return a -= b;
}
constexpr Vector operator*(Vector a, float k) {
    return a *= k;
}
constexpr Vector operator*(float k, Vector a) {
    return a *= k;
}

[[nodiscard]] Vector normalised(Vector v);
/// The length of b - a over all four components.
[[nodiscard]] float distance(const Vector& a, const Vector& b);
/// The distance over x and y only, and its square.
[[nodiscard]] float planarDistance(const Vector& a, const Vector& b);
[[nodiscard]] float planarDistanceSquared(const Vector& a, const Vector& b);
/// Sets out to a + (b - a) * t. For a t outside 0..1 out becomes the nearer end and the result is
/// false.
bool pointAlongSegment(const Vector& a, const Vector& b, float t, Vector& out);

}  // namespace bc
