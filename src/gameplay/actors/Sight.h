// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;

/// Whether looker, at its place, has a free line to target's. Level geometry and doors (solid or
/// not) block it, and so does every body that takes a side (ignoreAllies: enemies do not); liquids
/// and bodies without a side do not. With blocker given, it becomes the first body that blocks the
/// line, or null.
[[nodiscard]] bool canSee(const Body& looker, const Body& target, bool ignoreAllies,
                          const Body** blocker = nullptr);

}  // namespace bc
