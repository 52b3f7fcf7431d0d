// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// A place developers can warp to (type "namedpoint"): never seen, never met.
class NamedPoint final : public Creatable<NamedPoint, GameBody> {
  public:
    NamedPoint();
    void fields(BodyFields& f) override;

    void onLoaded() override;
    [[nodiscard]] bool isWarpPlace() const override { return true; }
};

}  // namespace bc
