// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Loads the input as XML. What the guard lets through must never nest deeper than it promises.
#include "FuzzFolder.h"

#include "command/GameVar.h"
#include "input/InputManager.h"
#include "resources/ResourceManager.h"
#include "resources/XmlGuard.h"

#include <tinyxml.h>

#include <cstdlib>

namespace {

int depthOf(const TiXmlNode& node) {
    int depth = 0;
    const TiXmlNode* at = &node;
    int here = 0;
    while (at != nullptr) {
        if (at->ToElement() != nullptr)
            depth = here > depth ? here : depth;
        if (at->FirstChild() != nullptr) {
            at = at->FirstChild();
            ++here;
            continue;
        }
        while (at != nullptr && at != &node && at->NextSibling() == nullptr) {
            at = at->Parent();
            --here;
        }
        at = at == &node || at == nullptr ? nullptr : at->NextSibling();
    }
    return depth;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bc::FuzzFolder folder;
    folder.put("x.xml", data, size);
    bc::ResourceManager manager;
    TiXmlDocument document;
    manager.loadXML(document, "x.xml");
    if (depthOf(document) > bc::maxXmlDepth)
        std::abort();
    bc::vars().clearVars();
    bc::vars().loadDeclarations("x.xml");
    bc::InputManager input;
    input.loadKeymap("x.xml");
    return 0;
}
