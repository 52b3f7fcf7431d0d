// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/objects/pickups/RespawnableBody.h"

namespace bc {

/// A weapon to take, with some ammunition; the type name (as "shotgun") says which unless the
/// level does.
class WeaponBase final : public RespawnableBody {
  public:
    explicit WeaponBase(const std::string& typeName = "weaponsbase");

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void fields(BodyFields& f) override;
    void onLoaded() override;

    /// Rounds that come with it.
    int ammo = 1;
    /// Short name of the weapon.
    std::string weaponType;

  protected:
    void give(Player& player) override;
    void pickupFeedback() override;

  private:
    std::string displayName_;
};

}  // namespace bc
