// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/HudNames.h"

#include "gameplay/weapons/WeaponTable.h"
#include "hud/HudPlayer.h"

namespace bc {

namespace {

class TableNames final : public HudWeaponNames {
  public:
    [[nodiscard]] std::string hudShortName(int weaponId) const override {
        return std::string(weaponName(weaponId));
    }
    [[nodiscard]] std::string hudDisplayName(int weaponId) const override {
        return std::string(weaponDisplayName(weaponId));
    }
};

}  // namespace

const HudWeaponNames& hudWeaponNames() {
    static const TableNames names;
    return names;
}

}  // namespace bc
