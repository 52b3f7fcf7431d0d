// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class IGame;
class Subsystems;
class VideoModes;
struct Options;

/// Brings the subsystems up in their order, and runs what the command line asks for.
class Startup {
  public:
    /// All outlive the object.
    Startup(Subsystems& subsystems, VideoModes& modes, const Options& options)
        : subsystems_(subsystems), modes_(modes), options_(options) {}

    /// Variables, keys, input targets, the renderer and play. False, with the reason on standard
    /// error, when there is no window with OpenGL.
    bool openWindow(IGame& game);
    /// The video mode, sound, particles, skies and fonts; after the configuration has been read.
    /// False, with the reason on standard error, when there are no fonts.
    bool loadData(IGame& game);
    /// The commands of the command line; the first level when none of them loads one.
    void runStartCommands();

  private:
    bool initRenderer();
    bool initFonts();

    Subsystems& subsystems_;
    VideoModes& modes_;
    const Options& options_;
};

}  // namespace bc
