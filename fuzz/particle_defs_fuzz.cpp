// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Definition files of particle systems: whatever is read also runs for a while.
#include "FuzzXml.h"

#include "particles/ParticleManager.h"
#include "view/Frustum.h"

#include <tinyxml.h>

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TiXmlDocument document;
    const TiXmlElement* root = readFuzzed(data, size, document);
    if (root == nullptr)
        return 0;

    static bc::ParticleManager manager;
    manager.clear();
    manager.readDefinitions(*root);
    const bc::Frustum everything;
    int started = 0;
    for (const TiXmlElement* e = root->FirstChildElement(); e != nullptr && started < 8;
         e = e->NextSiblingElement(), ++started) {
        const char* id = e->Attribute("id");
        bc::ParticleSystem* system = manager.createFromDefinition(id != nullptr ? id : "");
        if (system == nullptr)
            continue;
        system->setPosition({0, 0, 0}, {500, 300, 0});
        system->emitInitial();
        system->emitAtSelf();
    }
    for (const float dt : {1 / 120.0F, 0.1F, 3.0F, 1e6F})
        manager.update(dt, everything);
    return 0;
}
