// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Subsystems;

/// The commands noclip, which lets the craft pass through everything, and warp.
class PlayerCommands {
  public:
    explicit PlayerCommands(Subsystems& subsystems) : subsystems_(subsystems) {}

    void registerCommands();

  private:
    void toggleNoclip();

    Subsystems& subsystems_;
    bool noclip_ = false;
};

}  // namespace bc
