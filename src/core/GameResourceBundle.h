// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;
class BodyFactory;
class Console;
class IGame;
class IGUI;
class InputManager;
class IRenderer;
class ISound;
class QuadTree;
struct BasicTimer;

/// What the gameplay controller is given at its init. Nothing in it is owned.
struct GameResourceBundle {
    IGame* game = nullptr;
    ISound* sound = nullptr;
    IRenderer* renderer = nullptr;
    InputManager* input = nullptr;
    IGUI* gui = nullptr;
    Console* console = nullptr;
    BasicTimer* timer = nullptr;
    QuadTree* quadtree = nullptr;
    Body* player = nullptr;
    BodyFactory* bodyFactory = nullptr;
};

}  // namespace bc
