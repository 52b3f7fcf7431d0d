// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Lets no damage through for half a minute (type "invincibility").
class Invincibility final : public Creatable<Invincibility, RespawnableBody> {
  public:
    Invincibility();

  protected:
    void give(Player& player) override;
};

}  // namespace bc
