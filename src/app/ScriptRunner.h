// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/FrameScript.h"

#include <cstdint>
#include <string>

namespace bc {

class EventPump;
class EventRouter;
class Subsystems;

/// Plays the script of --script: console command lines, and input events that take the way of real
/// ones.
class ScriptRunner {
  public:
    /// All outlive the object.
    ScriptRunner(Subsystems& subsystems, EventPump& pump, EventRouter& router)
        : subsystems_(subsystems), pump_(pump), router_(router) {}

    /// An empty path is no script. One that cannot be read is told on the log and on standard
    /// error, and nothing is played.
    void load(const std::string& path);
    /// Runs the lines due at this pass of the main loop, counted from 0, in file order. Each event
    /// is handled before the next line.
    void runDue(std::uint32_t pass);

  private:
    void runLine(const std::string& line);

    Subsystems& subsystems_;
    EventPump& pump_;
    EventRouter& router_;
    FrameScript script_;
};

}  // namespace bc
