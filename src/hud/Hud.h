// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "hud/HudItem.h"

#include <memory>
#include <utility>
#include <vector>

namespace bc {

/// Items laid out on a fixed design canvas and scaled to the window, drawn in the order in which
/// they were added. Owns the items.
class Hud {
  public:
    /// Design units.
    static constexpr int canvasWidth = 640;
    static constexpr int canvasHeight = 480;

    Hud() = default;
    virtual ~Hud() = default;
    Hud(const Hud&) = delete;
    Hud& operator=(const Hud&) = delete;

    /// Lays everything out for a window of that many pixels.
    void resize(int width, int height);
    /// dt in seconds since the last frame.
    virtual void draw(IRenderer& renderer, float dt);
    /// Once a step, before drawing; dt in seconds.
    virtual void update(float dt) { static_cast<void>(dt); }
    void addItem(std::unique_ptr<HudItem> item);
    /// Moves an item in the window only, to where design position x, y lies; the next resize puts
    /// it back to its own design position.
    void placeItem(HudItem& item, int x, int y) const;

    [[nodiscard]] const std::vector<std::unique_ptr<HudItem>>& items() const { return items_; }
    [[nodiscard]] int windowWidth() const { return windowWidth_; }
    [[nodiscard]] int windowHeight() const { return windowHeight_; }
    /// How many times letters fit into the window that fit into the canvas once: a whole number,
    /// so that they stay sharp.
    [[nodiscard]] int textScale() const;

  protected:
    /// Called by resize after the new window size is known and before items are scaled.
    virtual void onResize() {}
    /// Makes an item of type Item, adds it, and returns it for further settings.
    template <class Item, class... Args>
    Item* make(Args&&... args) {
        auto item = std::make_unique<Item>(std::forward<Args>(args)...);
        Item* raw = item.get();
        addItem(std::move(item));
        return raw;
    }
    void removeItems() { items_.clear(); }

  private:
    [[nodiscard]] int toPixelsX(int x) const;
    [[nodiscard]] int toPixelsY(int y) const;

    std::vector<std::unique_ptr<HudItem>> items_;
    int windowWidth_ = canvasWidth;
    int windowHeight_ = canvasHeight;
};

}  // namespace bc
