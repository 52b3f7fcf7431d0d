// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

class TiXmlElement;

namespace bc {

class Body;
class World;

/// Appends an Objects element with every body of the world in its order, in the form of a level
/// file, each with its autoid and a child debug that tells what the form does not.
void dumpBodies(const World& world, TiXmlElement& root);
/// The same for one body.
TiXmlElement* dumpBody(const Body& body, TiXmlElement& parent);

}  // namespace bc
