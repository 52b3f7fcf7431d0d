// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/RGBAColour.h"
#include "core/Vector.h"

#include <string_view>

namespace bc {

// What play shows and plays. All of it does nothing where the application has no such subsystem.

/// How much nearer than the bodies effects are drawn.
inline constexpr float effectRaise = 0.2F;
inline constexpr float shockRaise = 0.1F;

/// Plays a sample once at a place, on the sample's own channel.
void playSoundAt(int soundId, const Vector& position);
/// The glitter of something that appears, and its sound.
void appearEffect(const Vector& position);
/// Replaces the screen overlay by a colour that fades within half a second.
void flashScreen(const RGBAColour& colour);
/// Shock, fire, sparks, eight streaks and the bang of an explosion, without screen flash.
void explosionEffects(const Vector& position);

// The HUD's message lines.
void showMessage(std::string_view text);
/// anchor: GameHUD::showMessageAnchored.
void showAnchoredMessage(std::string_view text, int anchor);
inline constexpr int anchorCentre = 8;

}  // namespace bc
