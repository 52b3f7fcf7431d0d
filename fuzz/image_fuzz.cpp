// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Image files: what the guard lets through is decoded.
#include "FuzzFolder.h"

#include "render/ImageFile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bc::FuzzFolder folder;
    folder.put("image.png", data, size);
    const auto image = bc::loadImage("image.png");
    if (!image)
        return 0;
    const std::size_t pixels =
        static_cast<std::size_t>(image->width) * static_cast<std::size_t>(image->height);
    if (image->pixels.size() != pixels * static_cast<std::size_t>(image->bitsPerPixel / 8))
        __builtin_trap();
    return 0;
}
