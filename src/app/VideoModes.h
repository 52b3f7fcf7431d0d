// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace bc {

class GameVar;
class Subsystems;
struct Options;

/// The size of the window and whether it fills the screen: chooses the first mode, changes it, and
/// tells everyone who draws. Sizes are in pixels. What the command line says replaces the variables
/// vidwidth, vidheight, vidfullscreen and firstrun for one run only.
class VideoModes {
  public:
    /// Both outlive the object.
    VideoModes(Subsystems& subsystems, const Options& options)
        : subsystems_(subsystems), options_(options) {}

    /// vidrestart and resdbg.
    void registerCommands();
    /// The mode of the start: that of the command line, the desktop's on the very first run, else
    /// the configured one.
    void initVideoMode();
    /// Changes the mode and the variables, and lets textures and fonts be loaded anew. A mode that
    /// cannot be set becomes a window of 640 x 480.
    void setVideoMode(int width, int height, bool fullscreen);
    /// Tells menus, console and HUD the size of the window.
    void passScreenSize();
    /// Gives the variables that the command line replaced their configured values back, except
    /// those that were changed since. Before the configuration is written.
    void restoreSettings();

  private:
    struct Overridden {
        GameVar* var;
        int configured;
        int inForce;
    };

    void overrideSetting(const char* name, int value);
    void applyCommandLine();

    Subsystems& subsystems_;
    const Options& options_;
    std::vector<Overridden> overridden_;
};

}  // namespace bc
