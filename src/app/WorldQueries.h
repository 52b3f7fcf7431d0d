// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class World;

/// The console commands that ask the running level a question: trace (what a line meets) and sees
/// (whether a body sees another). The answer goes to the console and the log, or to a file of the
/// user folder when one is named.
class WorldQueries {
  public:
    explicit WorldQueries(World& world) : world_(world) {}

    void registerCommands();

  private:
    void trace();
    void sees();

    World& world_;
};

}  // namespace bc
