// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Something to carry to a slot (type "battery").
class Battery final : public Creatable<Battery, GameBody> {
  public:
    Battery();
    void fields(BodyFields& f) override;
};

}  // namespace bc
