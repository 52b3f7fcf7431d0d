// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Level.h"

namespace bc::levelc {

class AssetIndex;
class BodyTypes;
class Problems;
struct TiledMap;

/// Makes the level of a map. Each slip of the map is a problem; with one the level is not whole and
/// must not be written.
[[nodiscard]] Level compileLevel(const TiledMap& map, const BodyTypes& types,
                                 const AssetIndex& assets, Problems& problems);

}  // namespace bc::levelc
