// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "world/WorldDump.h"

#include "resources/XmlAttributes.h"
#include "world/LevelFormat.h"
#include "world/World.h"

#include <tinyxml.h>

namespace bc {

TiXmlElement* dumpBody(const Body& body, TiXmlElement& parent) {
    TiXmlElement* p = levelformat::writeBody(body, parent);
    xml::writeInt(*p, "autoid", body.autoid);
    TiXmlElement* debug = p->LinkEndChild(new TiXmlElement("debug"))->ToElement();
    body.dumpState(*debug);
    return p;
}

void dumpBodies(const World& world, TiXmlElement& root) {
    TiXmlElement* objects = root.LinkEndChild(new TiXmlElement("Objects"))->ToElement();
    for (const Body* body : world.allBodies())
        dumpBody(*body, *objects);
}

}  // namespace bc
