// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Health (type "health"), taken while the player's is not at its maximum.
class Health : public Creatable<Health, RespawnableBody> {
  public:
    Health();
    void fields(BodyFields& f) override;

    int amount = 50;

  protected:
    /// False for one whose amount is not a level's to set.
    [[nodiscard]] virtual bool hasAmount() const { return true; }
    [[nodiscard]] bool wanted(Player& player) const override;
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
