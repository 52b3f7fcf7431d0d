// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// Multiplies the damage that the player deals (type "quad"): four times for half a minute.
class QuadDamage : public RespawnableBody {
  public:
    QuadDamage();

    [[nodiscard]] std::unique_ptr<Body> create() const override;

  protected:
    QuadDamage(const char* typeName, float factor, const char* effect);
    void give(Player& player) override;

  private:
    float factor_ = 4;
    const char* effect_;
};

/// Eight times (type "megaquad").
class MegaQuadDamage final : public QuadDamage {
  public:
    MegaQuadDamage();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
};

/// Lets no damage through for half a minute (type "invincibility").
class Invincibility final : public RespawnableBody {
  public:
    Invincibility();

    [[nodiscard]] std::unique_ptr<Body> create() const override;

  protected:
    void give(Player& player) override;
};

}  // namespace bc
