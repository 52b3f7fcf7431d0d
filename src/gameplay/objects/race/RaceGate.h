// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;
class Race;

// What the gates and goals of a race share.

/// Picture of a gate that is ready; another one shows that it rests.
inline constexpr const char* readyGateTexture = "data/images/checkers.png";

/// The race; null where there are no rules of play.
[[nodiscard]] Race* currentRace();
[[nodiscard]] bool isRaceActive();
/// Gives a gate the picture of its state.
void showGateState(Body& gate, bool resting);

}  // namespace bc
