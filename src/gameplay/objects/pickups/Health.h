// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// Health (type "health"), taken while the player's is not at its maximum.
class Health : public RespawnableBody {
  public:
    Health();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;

    int amount = 50;

  protected:
    [[nodiscard]] bool wanted(Player& player) const override;
    void give(Player& player) override;
    void pickupFeedback() override;
};

/// The small one (type "quickhealth").
class QuickHealth final : public Health {
  public:
    QuickHealth();

    [[nodiscard]] std::unique_ptr<Body> create() const override;

  protected:
    void pickupFeedback() override;
};

/// Fills the player up (type "megahealth"); a particle system runs while it is there.
class MegaHealth final : public Health {
  public:
    MegaHealth();
    ~MegaHealth() override;

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onLoaded() override;
    void onThink(float dt) override;
    void respawn() override;

  protected:
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
