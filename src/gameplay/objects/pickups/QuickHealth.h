// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/Health.h"
#include "world/Creatable.h"

namespace bc {

/// The small one (type "quickhealth").
class QuickHealth final : public Creatable<QuickHealth, Health> {
  public:
    QuickHealth();

  protected:
    void pickupFeedback() override;
};

}  // namespace bc
