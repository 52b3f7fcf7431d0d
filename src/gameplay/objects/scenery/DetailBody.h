// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "world/Creatable.h"

namespace bc {

/// Decoration (type "detail").
class DetailBody final : public Creatable<DetailBody, GameBody> {
  public:
    DetailBody();
    void fields(BodyFields& f) override;
};

}  // namespace bc
