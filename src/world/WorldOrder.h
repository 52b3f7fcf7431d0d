// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

class TiXmlElement;

namespace bc {

class World;

// What the next step depends on beside the bodies' own state, as an element Order of a save: the
// order in which bodies have their turn, the one in which the spatial index offers them, and how
// far the bounds of those that move reach. The orders are lists of ids, with "+N" for the next N
// bodies that have none, which come from the level file. What will not come back from the save
// (gibs, texts, the hook) is left out.

void saveOrder(const World& world, TiXmlElement& root);
/// Once every body of the save is in the world; step in seconds. Bodies that the lists do not name
/// come last, in the order they are in; ids that nothing bears are passed over. Nothing happens
/// without the element.
void restoreOrder(World& world, const TiXmlElement& root, float step);

}  // namespace bc
