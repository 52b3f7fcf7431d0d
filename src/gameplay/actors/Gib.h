// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/BodyPool.h"
#include "world/Creatable.h"

namespace bc {

/// A fragment that a violent death throws out (type "gib"): bounces about for three seconds. How
/// many there are at once is limited by the controller's gib budget.
class Gib final : public Creatable<Gib, PooledBody> {
  public:
    /// Milliseconds.
    static constexpr float lifetime = 3000;

    Gib();
    ~Gib() override;
    void fields(BodyFields& f) override;

    void renew() override;
    void retire(std::unique_ptr<Body> self) override;
    void onThink(float dt) override;
    void onTouch(const TouchInfo& touch) override;
    [[nodiscard]] bool acceptsCollision(const Body& other) const override;

    /// Throws one whose unit of the budget has been granted.
    static void launchFrom(const Vector& position);

    /// Level time of the next possible sound, ms.
    float nextBounceSound = 0;

  private:
    void returnToBudget();

    bool counted_ = false;
};

/// Solid, visible and static: what things bounce off.
[[nodiscard]] bool isStaticGeometry(const Body& body);
/// The sound of a body hitting static geometry hard enough, not more than four times a second.
/// nextSound is the level time (ms) from which the next one may play.
void playBounceSound(const Body& body, float& nextSound);

}  // namespace bc
