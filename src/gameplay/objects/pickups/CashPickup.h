// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// Cash (type "cashpickup"), placed by a level or dropped by an enemy; collected once for good.
class CashPickup final : public RespawnableBody {
  public:
    CashPickup();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void loadState(const TiXmlElement& e) override;
    void saveState(TiXmlElement& e) const override;
    /// The player flies through it.
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;

    int amount = 0;

  protected:
    void give(Player& player) override;
    void pickupFeedback() override;
};

}  // namespace bc
