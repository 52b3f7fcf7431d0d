// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/Hud.h"

#include "ports/IRenderer.h"

#include <algorithm>
#include <cstdint>

namespace bc {

namespace {

/// Windows up to 16384 pixels wide and positions far outside the canvas stay within the range.
int scaled(int design, int window, int canvas) {
    return static_cast<int>(std::int64_t{design} * window / canvas);
}

}  // namespace

int Hud::textScale() const {
    // Nine tenths of the room are enough for the next larger letters.
    constexpr int enoughWidth = canvasWidth * 9 / 10;
    constexpr int enoughHeight = canvasHeight * 9 / 10;
    return std::max(std::min(windowWidth_ / enoughWidth, windowHeight_ / enoughHeight), 1);
}

int Hud::toPixelsX(int x) const {
    return scaled(x, windowWidth_, canvasWidth);
}

int Hud::toPixelsY(int y) const {
    return scaled(y, windowHeight_, canvasHeight);
}

void Hud::resize(int width, int height) {
    windowWidth_ = std::max(width, 1);
    windowHeight_ = std::max(height, 1);
    for (const auto& item : items_)
        item->setTextScale(textScale());
    onResize();
    for (const auto& item : items_) {
        const HudItem::Box& box = item->design();
        item->setPixelPosition(toPixelsX(box.x), toPixelsY(box.y));
        item->setPixelSize(toPixelsX(box.width), toPixelsY(box.height));
    }
}

void Hud::draw(IRenderer& renderer, float dt) {
    renderer.begin2D();
    for (const auto& item : items_) {
        if (item->visible)
            item->draw(renderer, dt);
    }
    renderer.end2D();
}

void Hud::addItem(std::unique_ptr<HudItem> item) {
    item->setTextScale(textScale());
    items_.push_back(std::move(item));
}

void Hud::placeItem(HudItem& item, int x, int y) const {
    item.setPixelPosition(toPixelsX(x), toPixelsY(y));
}

}  // namespace bc
