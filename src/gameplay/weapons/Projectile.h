// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/BodyPool.h"
#include "world/Creatable.h"

namespace bc {

/// What a launcher fires: flies until it touches something or its fuse is over, and then explodes.
/// A dynamic object that saves keep, with its owner, who is not hurt by the blast.
class Projectile : public Creatable<Projectile, PooledBody> {
  public:
    Projectile();
    void fields(BodyFields& f) override;

    void renew() override;
    /// Once in flight: the trail behind it and whatever else follows it.
    virtual void attachEffects() {}
    void onRestored() override { attachEffects(); }
    /// What fired it is its owner, but it is no child: it flies on when that one is gone.
    void onBeforeTargets() override;

    /// Blast damage around its place, effects, and it is gone. Nothing happens a second time.
    void explode();

    /// Units a second.
    float speed = 400;
    /// Points, before the owner's quad damage and difficulty.
    float damage = 10;
    /// World units.
    float blastRadius = 64;
    /// Factor of the push of the blast.
    float knockback = 0;
    /// Milliseconds it may fly; only some kinds care.
    float lifetime = 0;
    /// Level time of the explosion, for kinds with a fuse.
    float fuseTime = 0;
    bool exploded = false;
    int damageType = 0;
    /// The blast does not flash the screen.
    bool noFlash = false;
    /// As it was launched, unit length.
    Vector direction;

  protected:
    /// What is seen and heard of the explosion.
    virtual void blastEffects();
    /// Starts a trail that follows it.
    void attachTrail(std::string_view effect, int count = 1);
    /// Whether the touch ends the flight of a kind that flies straight on: something solid that can
    /// be seen (or a clip), not the owner.
    [[nodiscard]] bool isStoppedBy(const Body& other) const;
};

}  // namespace bc
