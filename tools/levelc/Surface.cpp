// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "Surface.h"

#include "ObjectValues.h"

#include "core/Text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace bc::levelc {

namespace {

Point directionOf(const std::string& name) {
    if (name == "up")
        return {0, 1};
    if (name == "left")
        return {-1, 0};
    return name == "right" ? Point{1, 0} : Point{0, -1};
}

}  // namespace

Surface::Surface(const ObjectValues& values, const Box& box)
    : box_(box),
      gradient_(directionOf(values.text("gradient"))),
      textured_(values.flag("textured")),
      fits_(values.text("texmap") == "fit"),
      textureSize_(std::max(values.number("texsize"), 1.0)),
      textureScale_{values.number("texhscale"), values.number("texvscale")},
      textureShift_{values.number("texhshift"), values.number("texvshift")},
      textureAngle_(values.number("texrotate") * std::numbers::pi / 180) {
    parseFloats(values.colour("colour"), ",", near_.data(), 4);
    parseFloats(values.colour(values.has("colour2") ? "colour2" : "colour"), ",", far_.data(), 4);
}

LevelCorner Surface::corner(Point place) const {
    return {place, colourAt(place), textured_ ? textureAt(place) : Point{}};
}

std::string Surface::colourAt(Point place) const {
    const Point start{gradient_.x < 0 ? box_.high.x : box_.low.x,
                      gradient_.y < 0 ? box_.high.y : box_.low.y};
    const double reach = std::abs(dot(box_.high - box_.low, gradient_));
    const double t = std::clamp(dot(place - start, gradient_) / reach, 0.0, 1.0);
    std::string out;
    for (std::size_t i = 0; i < near_.size(); ++i) {
        const double channel = near_[i] + (far_[i] - near_[i]) * t;
        out += (i == 0 ? "" : ",") + std::to_string(std::lround(channel));
    }
    return out;
}

Point Surface::textureAt(Point place) const {
    Point at = place * (1 / textureSize_);
    if (fits_) {
        const Point size = box_.high - box_.low;
        at = {(place.x - box_.low.x) / size.x, (place.y - box_.low.y) / size.y};
    }
    if (textureAngle_ != 0) {
        // Turning the picture one way is turning the places it is looked up at the other way.
        const double c = std::cos(textureAngle_);
        const double s = std::sin(textureAngle_);
        at = {at.x * c + at.y * s, at.y * c - at.x * s};
    }
    return {at.x * textureScale_.x + textureShift_.x, at.y * textureScale_.y + textureShift_.y};
}

}  // namespace bc::levelc
