// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Sky files: whatever is read is also drawn for a while.
#include "FuzzXml.h"

#include "render/HeadlessRenderer.h"
#include "sky/BaseSky.h"

#include <tinyxml.h>

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    TiXmlDocument document;
    const TiXmlElement* root = readFuzzed(data, size, document);
    if (root == nullptr)
        return 0;
    static bc::HeadlessRenderer renderer;
    bc::BaseSky sky;
    sky.read(*root);
    for (const float dt : {0.0F, 1 / 60.0F, 1e6F, 1 / 60.0F})
        sky.draw(renderer, {1e5F, -1e5F, -256}, dt, nullptr, nullptr);
    TiXmlElement dumped("sky");
    sky.dump(dumped);
    return 0;
}
