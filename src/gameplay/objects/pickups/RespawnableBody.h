// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

#include <string>

namespace bc {

class Player;

/// A pickup: the player collects it by touch while it is there, and it comes back after a delay.
/// It is there while it is visible.
class RespawnableBody : public GameBody {
  public:
    RespawnableBody();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    void onThink(float dt) override;

    /// Puts it back with the effect of something appearing.
    virtual void respawn();

    [[nodiscard]] bool isAvailable() const { return visible; }

    /// Milliseconds until a collected pickup returns.
    float respawnDelay = 5000;
    /// Level time (ms) of its return.
    float nextRespawn = 0;
    /// False: collected once for good.
    bool canRespawn = true;

  protected:
    /// Whether the player has use for it.
    [[nodiscard]] virtual bool wanted(Player&) const { return true; }
    /// Gives the player what it holds; it is hidden already.
    virtual void give(Player& player) = 0;
    /// Sound, message and text of a pickup, after give.
    virtual void pickupFeedback() {}

    /// A text that rises from the pickup.
    void floatText(std::string_view text);
    /// The usual feedback: a sound here, a line of the HUD and the same text rising.
    void announce(int soundId, std::string_view text);
};

}  // namespace bc
