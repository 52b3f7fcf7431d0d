// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"

namespace bc {

/// A place where the player appears (type "spawnpoint"), named by its id or marked as the start of
/// the level.
class SpawnPoint final : public GameBody {
  public:
    SpawnPoint();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void applyAttributes(const std::map<std::string, std::string>& attributes) override;
    void dumpState(TiXmlElement& debug) const override;
    /// The glitter of something appearing here.
    void appearanceEffect() const;

    bool startPoint = false;
};

/// A place developers can warp to (type "namedpoint"): never seen, never met.
class NamedPoint final : public GameBody {
  public:
    NamedPoint();

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void onLoaded() override;
    [[nodiscard]] bool isWarpPlace() const override { return true; }
};

}  // namespace bc
