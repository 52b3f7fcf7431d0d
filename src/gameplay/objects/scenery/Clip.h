// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// An invisible wall that doors pass through (type "clip").
class Clip final : public Creatable<Clip, GameBody> {
  public:
    Clip();
    void fields(BodyFields& f) override;

    void onLoaded() override;
};

}  // namespace bc
