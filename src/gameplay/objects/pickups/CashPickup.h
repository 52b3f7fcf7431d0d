// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Cash (type "cashpickup"), placed by a level or dropped by an enemy; collected once for good.
class CashPickup final : public Creatable<CashPickup, RespawnableBody> {
  public:
    CashPickup();
    void fields(BodyFields& f) override;

    /// The player flies through it.
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;

    int amount = 0;

  protected:
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
