// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/Health.h"
#include "world/Creatable.h"

namespace bc {

/// Fills the player up (type "megahealth"); a particle system runs while it is there.
class MegaHealth final : public Creatable<MegaHealth, Health> {
  public:
    MegaHealth();
    ~MegaHealth() override;

    void onLoaded() override;
    void onThink(float dt) override;
    void respawn() override;

  protected:
    [[nodiscard]] bool hasAmount() const override { return false; }
    void give(Player& player) override;
    void pickupFeedback() override;

  private:
    void startEffect();
    void endEffect(float seconds);

    static constexpr int none = -1;
    /// The particle manager's id of the running system.
    int effect_ = none;
};

}  // namespace bc
