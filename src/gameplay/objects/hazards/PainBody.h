// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// Hurts what touches it while it is on (type "painbody").
class PainBody final : public GameBody {
  public:
    /// Milliseconds between two contacts that hurt.
    static constexpr float painInterval = 100;

    PainBody();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    void dumpState(TiXmlElement& debug) const override;
    /// Its picture drifts upwards while it is on, and stands still while it is off.
    [[nodiscard]] bool hasTextureTransform() const override { return on; }
    void textureTransform(TextureTransform& transform) override;

    bool on = false;
    /// Damage of one contact.
    int pain = 0;
    /// Milliseconds after which being switched is undone; 0: never.
    float revertTimer = 0;
    bool triggered = false;
    /// Level time (ms).
    float revertAt = 0;
};

}  // namespace bc
