// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class EventPump;
class InputManager;

/// Takes events from the pump to the input manager, and keeps the request to quit, which the window
/// and the game can make.
class EventRouter {
  public:
    /// Both outlive the object.
    EventRouter(EventPump& pump, InputManager& input) : pump_(pump), input_(input) {}

    /// Handles every event that is pending.
    void pumpEvents();
    void setQuit(bool quit) { quitRequested_ = quit; }
    [[nodiscard]] bool isQuitting() const { return quitRequested_; }

  private:
    EventPump& pump_;
    InputManager& input_;
    bool quitRequested_ = false;
};

}  // namespace bc
