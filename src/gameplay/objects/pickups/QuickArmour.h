// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/Armour.h"
#include "world/Creatable.h"

namespace bc {

/// The small one (type "quickarmour").
class QuickArmour final : public Creatable<QuickArmour, Armour> {
  public:
    QuickArmour();
    void fields(BodyFields& f) override;

  protected:
    void pickupFeedback() override;
};

}  // namespace bc
