// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// The glow of a teleporter (type "teleportervisual").
class TeleporterVisual final : public Creatable<TeleporterVisual, GameBody> {
  public:
    TeleporterVisual();
    void fields(BodyFields& f) override;

    void onLoaded() override;
};

}  // namespace bc
