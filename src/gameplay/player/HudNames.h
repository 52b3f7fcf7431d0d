// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class HudWeaponNames;

/// The weapon table as the HUD asks for it. Lives as long as the process.
[[nodiscard]] const HudWeaponNames& hudWeaponNames();

}  // namespace bc
