// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Slides away when something sets it off, and back after a time (type "door").
class Door final : public Creatable<Door, GameBody> {
  public:
    Door();
    void fields(BodyFields& f) override;

    void onSpawned() override;
    void onTriggered(GameBody* activator) override;
    void onThink(float dt) override;
    void update(float dt) override;
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;
    [[nodiscard]] bool blocksSight() const override { return true; }
    [[nodiscard]] bool bouncesGrenades() const override { return true; }

    Vector startPoint;
    Vector targetPos;
    /// From the start to the open position.
    Vector offset;
    /// Level time (ms) at which it closes, and milliseconds it stays open (0: for good).
    float closeTime = 0;
    float timeOpen = 0;
    /// Units a second.
    float speed = 0;
    bool isOpen = false;
    bool isOpening = false;
    bool isClosing = false;
    /// Moves towards larger x and y.
    bool xDirection = false;
    bool yDirection = false;

  private:
    void setOffTowards(const Vector& direction);
    /// Stops it at the place once it has come there or past it; true when it is there.
    bool holdAt(const Vector& place);
};

}  // namespace bc
