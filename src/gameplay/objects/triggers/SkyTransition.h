// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"

namespace bc {

/// Changes the sky when the player passes (type "skytransition"); its targets are left alone.
class SkyTransition final : public TriggerBody {
  public:
    SkyTransition();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onTouch(const TouchInfo& info) override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    /// Bare name or path of a loaded sky.
    std::string sky;
};

/// The skies of a level (type "skyinfo"): which are loaded and with which it begins.
class SkyInfo final : public GameBody {
  public:
    SkyInfo();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void onLoaded() override;

    /// Comma-separated.
    std::string skies;
    std::string initialSky;
};

}  // namespace bc
