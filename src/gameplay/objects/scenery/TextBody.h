// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// A text in the world (type "textbody"), placed by a level or thrown up during play, which then
/// rises, fades and goes by itself.
class TextBody final : public Creatable<TextBody, GameBody> {
  public:
    TextBody();
    void fields(BodyFields& f) override;

    void onLoaded() override;
    void update(float dt) override;
    [[nodiscard]] bool drawsItself() const override { return true; }
    void drawSelf(IRenderer& renderer) override;

    /// From now on it rises, fades and is gone after two seconds.
    void floatAway();

    std::string text;
    std::string font = "vera";
    int size = 12;
    bool shadow = false;
    float scale = 1;

  private:
    /// The pen start relative to pos, from the corners.
    void computeAnchor();

    Vector anchor_;
    bool floating_ = false;
    /// Seconds since it was thrown up.
    float age_ = 0;
};

}  // namespace bc
