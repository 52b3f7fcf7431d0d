// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Font files: whatever is read is also measured and drawn.
#include "FuzzFolder.h"

#include "render/HeadlessRenderer.h"
#include "render/ImageFontRenderer.h"

#include <cstdint>
#include <filesystem>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bc::FuzzFolder folder;
    static bc::HeadlessRenderer renderer;
    static const std::string text = [] {
        std::string all;
        for (int code = 0; code < 256; ++code)
            all += static_cast<char>(code);
        return all;
    }();
    std::filesystem::create_directories(bc::files::dataFolder() + "/data/fonts");
    for (const char* name : {"vera_12", "verabd_14", "verabd_18", "verabd_24"})
        folder.put("data/fonts/" + std::string(name) + ".xml", data, size);
    bc::ImageFontRenderer fonts;
    fonts.setRenderer(&renderer);
    fonts.init();
    fonts.drawShadowText(fonts.centreX(0, 100, text), fonts.centreY(0, 100, text), text);
    return 0;
}
