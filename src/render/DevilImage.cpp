// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/DevilImage.h"

#include "render/Image.h"
#include "resources/FileSystem.h"

#include <IL/ilu.h>

namespace bc {

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
    return files::replaceBy(name, [this](const std::string& path) {
        bind();
        return ilSave(IL_PNG, path.c_str()) != IL_FALSE;
    });
}

}  // namespace bc
