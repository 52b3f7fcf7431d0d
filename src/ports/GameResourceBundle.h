// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class IGame;
class IRenderer;
class ISound;
struct BasicTimer;

/// The objects that IGameplay::init hands to the gameplay controller. The bundle does not own them.
struct GameResourceBundle {
    IGame* game = nullptr;
    ISound* sound = nullptr;
    IRenderer* renderer = nullptr;
    /// The timer that the main loop ticks once a frame.
    BasicTimer* timer = nullptr;
};

}  // namespace bc
