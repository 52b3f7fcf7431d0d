// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"
#include "world/Creatable.h"

namespace bc {

/// Multiplies the damage that the player deals (type "quad"): four times for half a minute.
class QuadDamage : public Creatable<QuadDamage, RespawnableBody> {
  public:
    QuadDamage();

  protected:
    QuadDamage(const char* typeName, float factor, const char* effect);
    void give(Player& player) override;

  private:
    float factor_ = 4;
    const char* effect_;
};

}  // namespace bc
