// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "render/Pictures.h"

#include "command/CommandRegistry.h"
#include "core/Log.h"
#include "render/DevilImage.h"
#include "render/Image.h"
#include "render/ImageGuard.h"
#include "resources/FileSystem.h"

#include <IL/ilu.h>

namespace bc {

namespace {

constexpr int numbersEnd = 9999;
/// Scaling washes a picture out a little.
constexpr float thumbnailContrast = 1.1F;

std::string numbered(const char* stem, int n) {
    std::string name = stem;
    for (int unit = 1000; unit > 0; unit /= 10)
        name += static_cast<char>('0' + n / unit % 10);
    return name + ".png";
}

void tell(const std::string& text) {
    logLine(text);
    consolePrint(text);
}

}  // namespace

Pictures::Pictures() = default;
Pictures::~Pictures() = default;

std::string Pictures::nextName(bool movie) {
    if (movie)
        return numbered("screenshots/movie", counter_++);
    std::string name;
    for (; counter_ < numbersEnd; ++counter_) {
        name = numbered("screenshots/screenshot", counter_);
        if (!files::resolve(name))
            break;
    }
    return name;
}

void Pictures::writeScreenshot(const std::optional<Image>& frame, bool movie) {
    const DevilImage picture;
    if (!frame || !picture.assign(*frame)) {
        logLine("Error taking screenshot");
        return;
    }
    // A movie that has used up the numbers keeps its count there.
    if (counter_ > numbersEnd)
        counter_ = numbersEnd;
    const std::string name = nextName(movie);
    if (counter_ < numbersEnd) {
        if (!movie)
            tell("Writing screenshot to " + name);
        static_cast<void>(picture.savePng(name));
    } else if (!movie) {
        tell("Screenshots dir is full, copy the pictures elsewhere and try again");
    }
}

void Pictures::grabThumbnail(const std::optional<Image>& frame) {
    thumbnail_.reset();
    auto picture = std::make_unique<DevilImage>();
    if (frame && picture->assign(*frame))
        thumbnail_ = std::move(picture);
}

bool Pictures::saveThumbnail(const std::string& path, int width, int height) {
    if (!thumbnail_ || width < 1 || height < 1 || width > maxImageSide || height > maxImageSide)
        return false;
    const std::unique_ptr<DevilImage> picture = std::move(thumbnail_);
    picture->bind();
    iluImageParameter(ILU_FILTER, ILU_BILINEAR);
    if (iluScale(static_cast<ILuint>(width), static_cast<ILuint>(height), 1) == IL_FALSE)
        return false;
    iluContrast(thumbnailContrast);
    return picture->savePng(path);
}

}  // namespace bc
