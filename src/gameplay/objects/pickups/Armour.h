// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Armour (type "armour"), taken while the player's is not at its maximum.
class Armour : public Creatable<Armour, RespawnableBody> {
  public:
    Armour();
    void fields(BodyFields& f) override;

    int amount = 0;

  protected:
    [[nodiscard]] bool wanted(Player& player) const override;
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
