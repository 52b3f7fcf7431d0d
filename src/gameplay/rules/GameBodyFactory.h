// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "world/BodyFactory.h"

namespace bc {

/// Makes the bodies of play by type name. Two types may share a class; the type name tells them
/// apart.
class GameBodyFactory final : public BodyFactory {
  public:
    /// One prototype for every row of bodyTypes(), in its order.
    void registerDefaults() override;
};

}  // namespace bc
