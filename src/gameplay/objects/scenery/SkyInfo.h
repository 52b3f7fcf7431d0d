// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// The skies of a level (type "skyinfo"): which are loaded and with which it begins.
class SkyInfo final : public Creatable<SkyInfo, GameBody> {
  public:
    SkyInfo();
    void fields(BodyFields& f) override;

    void onLoaded() override;

    /// Comma-separated.
    std::string skies;
    std::string initialSky;
};

}  // namespace bc
