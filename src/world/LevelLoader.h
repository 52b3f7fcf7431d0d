// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/Body.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class TiXmlElement;

namespace bc {

class BodyCreator;
class World;

/// Bodies that have been read but are in no world yet.
using LevelBodies = std::vector<std::unique_ptr<Body>>;

// Loading is done in two halves, so that a level that cannot be read leaves the running one as it
// is: everything is read first, then the old world is let go and the new bodies placed.

/// "maps/" + name, with ".xml" appended unless the name has it already.
[[nodiscard]] std::string levelPath(std::string_view name);

/// Reads a level file. Nothing, and the log line "Could not load level file: " + path, when it
/// cannot be read. skipEntities: only its static part, for saves.
[[nodiscard]] std::optional<LevelBodies> readLevel(BodyCreator& factory, std::string_view name,
                                                   bool skipEntities = false);
/// Reads the bodies under the root's Objects elements, with the state in their custom children, and
/// appends them. Numbers are read exactly. file is named in messages. False when the root has no
/// Objects element.
bool readSavedBodies(BodyCreator& factory, const TiXmlElement& root, const std::string& file,
                     LevelBodies& out);

/// Gives the world's index the shape that it has when the level begins, with nothing in it, and
/// then takes the entities out of the bodies: for saves, which hold their own.
void shapeIndex(World& world, LevelBodies& bodies);
/// Puts the bodies into the world in order, resolves their targets and calls their post-load hooks.
/// An index that has no shape yet is sized to them. restoring: they come from a save and keep their
/// ids.
void insertBodies(World& world, LevelBodies bodies, bool restoring);
/// The second half of loading a level by name: insertBodies, the dump of the variable
/// load_leveldebug and the console line "Loaded successfuly: " + path.
void placeLevel(World& world, LevelBodies bodies, std::string_view name);
/// Both halves in one, for a world that is empty. False, and "Failed to load: " + path on the
/// console, when the level cannot be read.
bool loadLevel(World& world, BodyCreator& factory, std::string_view name);

/// Appends an Objects element with every entity of the world but the player and the grapple, with
/// its polygon to the last bit.
void saveEntities(const World& world, TiXmlElement& root);

}  // namespace bc
