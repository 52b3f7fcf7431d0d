// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/DevilImage.h"

#include "core/Log.h"
#include "render/Image.h"
#include "resources/FileSystem.h"

#include <IL/ilu.h>

#include <cstddef>
#include <string_view>

namespace bc {

namespace {

/// More than what a PNG holds beside its picture.
constexpr std::size_t headerRoom = 65536;

}  // namespace

void startDevil() {
    static const bool started = [] {
        ilInit();
        iluInit();
        ilEnable(IL_FILE_OVERWRITE);
        // Pictures come out with their top row first, however their file stores them.
        ilEnable(IL_ORIGIN_SET);
        ilOriginFunc(IL_ORIGIN_UPPER_LEFT);
        return true;
    }();
    static_cast<void>(started);
}

DevilImage::DevilImage() {
    startDevil();
    ilGenImages(1, &id_);
    ilBindImage(id_);
}

DevilImage::~DevilImage() {
    ilDeleteImages(1, &id_);
}

void DevilImage::bind() const {
    ilBindImage(id_);
}

bool DevilImage::assign(const Image& picture) const {
    bind();
    std::vector<std::uint8_t> copy = picture.pixels;
    if (ilTexImage(static_cast<ILuint>(picture.width), static_cast<ILuint>(picture.height), 1, 3,
                   IL_RGB, IL_UNSIGNED_BYTE, copy.data()) == IL_FALSE)
        return false;
    ilRegisterOrigin(IL_ORIGIN_LOWER_LEFT);
    return true;
}

bool DevilImage::savePng(const std::string& name) const {
    bind();
    // The library does not notice that a disk is full, so it writes to memory only. Data that do
    // not pack grow by less than a hundredth; a row begins with the number of its filter.
    const auto width = static_cast<std::size_t>(ilGetInteger(IL_IMAGE_WIDTH));
    const auto height = static_cast<std::size_t>(ilGetInteger(IL_IMAGE_HEIGHT));
    const std::size_t unpacked = (3 * width + 1) * height;
    std::string png(unpacked + unpacked / 100 + headerRoom, '\0');
    const std::size_t size = ilSaveL(IL_PNG, png.data(), static_cast<ILuint>(png.size()));
    if (size == 0 || size >= png.size()) {
        logLine("Could not pack the picture for " + name);
        return false;
    }
    return files::replace(name, std::string_view(png).substr(0, size));
}

}  // namespace bc
