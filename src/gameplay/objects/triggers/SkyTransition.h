// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Changes the sky when the player passes (type "skytransition"); its targets are left alone.
class SkyTransition final : public Creatable<SkyTransition, TriggerBody> {
  public:
    SkyTransition();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;

    /// Bare name or path of a loaded sky.
    std::string sky;
};

}  // namespace bc
