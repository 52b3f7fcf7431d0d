// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class IGame;
class IRenderer;
class ISound;
struct BasicTimer;

/// What the gameplay controller is given at its init. Nothing in it is owned.
struct GameResourceBundle {
    IGame* game = nullptr;
    ISound* sound = nullptr;
    IRenderer* renderer = nullptr;
    /// The frame clock.
    BasicTimer* timer = nullptr;
};

}  // namespace bc
