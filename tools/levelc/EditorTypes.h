// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc::levelc {

struct BodyType;
class BodyTypes;

// What the Tiled editor shows for an object of each body type: every parameter with its default.

/// brightclash.tiled-project: classes and enums, for Tiled 1.9 and later.
[[nodiscard]] std::string tiledProject(const BodyTypes& types);
/// objecttypes.xml, which the project names: the same for Tiled 1.8.
[[nodiscard]] std::string objectTypes(const BodyTypes& types);
/// The level makers' reference in Markdown.
[[nodiscard]] std::string levelReference(const BodyTypes& types);
/// The type's picture in that reference, seen from there. tools/typepictures makes them.
[[nodiscard]] std::string pictureOf(const BodyType& type);

}  // namespace bc::levelc
