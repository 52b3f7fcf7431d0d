// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"

#include <memory>

class TiXmlElement;

namespace bc {

class BodyCreator;

// One object of a level file: the element P with the children params, verts, attributes and, in
// saves, custom.
namespace levelformat {

/// More are refused, with a log line: levels have some hundreds of bodies with a few corners.
inline constexpr int maxBodies = 20000;
inline constexpr int maxCorners = 64;

/// Null for an entity when skipEntities is set, and, with a log line, for a body with too many
/// corners or with corners that are no places (not finite, beyond Body::maxCoordinate).
[[nodiscard]] std::unique_ptr<Body> readBody(BodyCreator& factory, const TiXmlElement& e,
                                             bool skipEntities, Digits digits = Digits::usual);
/// Appends a P element, with the state in custom. Returns it.
TiXmlElement* writeBody(const Body& body, TiXmlElement& parent, Digits digits = Digits::usual);
/// The polygon before it was turned and placed, to the last bit, which the places of its corners do
/// not tell. Nothing for a body of a default shape.
void writeShape(const Body& body, TiXmlElement& custom);
/// After loadState. What is missing or has other corners than the body leaves the polygon as it is,
/// not turned.
void readShape(Body& body, const TiXmlElement& custom);

}  // namespace levelformat
}  // namespace bc
