// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/triggers/TriggerBody.h"
#include "world/Creatable.h"

namespace bc {

/// Asks for a save under the current name when the player touches it or something sets it off
/// (type "checkpoint").
class Checkpoint final : public Creatable<Checkpoint, TriggerBody> {
  public:
    Checkpoint();
    void fields(BodyFields& f) override;

    void onTouch(const TouchInfo& info) override;
    /// Records here, without going to rest.
    void onTriggered(GameBody* activator) override;

  private:
    void record(const Vector& position);
};

}  // namespace bc
