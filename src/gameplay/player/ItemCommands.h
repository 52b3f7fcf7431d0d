// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

/// give, giveall, useitem, upgrade, reloadweapondefs and +showupgrades. They act on whoever is the
/// player when they are run.
void registerItemCommands();

}  // namespace bc
