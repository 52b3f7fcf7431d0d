// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/ImageFile.h"

#include "render/DevilImage.h"
#include "render/ImageGuard.h"
#include "resources/FileSystem.h"

#include <IL/ilu.h>

#include <cstddef>

namespace bc {

namespace {

constexpr std::uint64_t maxFileBytes = 128U << 20;

bool isColour(int bitsPerPixel) {
    return bitsPerPixel == 24 || bitsPerPixel == 32;
}

}  // namespace

std::optional<Image> loadImage(const std::string& name) {
    const std::optional<std::string> bytes = files::readAll(name, maxFileBytes);
    if (!bytes)
        return std::nullopt;
    const std::optional<ImageFacts> facts = inspectImage(*bytes);
    if (!facts || !isColour(facts->bitsPerPixel))
        return std::nullopt;

    const DevilImage decoded;
    const ILenum type = facts->kind == ImageKind::png ? IL_PNG : IL_TGA;
    if (ilLoadL(type, bytes->data(), static_cast<ILuint>(bytes->size())) == IL_FALSE)
        return std::nullopt;
    Image image;
    image.width = ilGetInteger(IL_IMAGE_WIDTH);
    image.height = ilGetInteger(IL_IMAGE_HEIGHT);
    image.bitsPerPixel = ilGetInteger(IL_IMAGE_BITS_PER_PIXEL);
    if (image.width != facts->width || image.height != facts->height ||
        !isColour(image.bitsPerPixel))
        return std::nullopt;
    // Files may store blue first.
    const ILenum format = image.bitsPerPixel == 32 ? IL_RGBA : IL_RGB;
    if (ilConvertImage(format, IL_UNSIGNED_BYTE) == IL_FALSE || iluFlipImage() == IL_FALSE)
        return std::nullopt;
    const std::size_t size = static_cast<std::size_t>(image.width) *
                             static_cast<std::size_t>(image.height) *
                             static_cast<std::size_t>(image.bitsPerPixel / 8);
    const ILubyte* data = ilGetData();
    image.pixels.assign(data, data + size);
    return image;
}

}  // namespace bc
