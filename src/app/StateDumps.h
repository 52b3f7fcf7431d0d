// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class TiXmlElement;

namespace bc {

class FrameLoop;
class LevelSession;
class Pause;
class Presenter;
class SaveGames;
class ScreenOverlay;
class Stepper;
class Subsystems;

/// The console commands that write the state of the running program to files, for people and tests
/// that look at a run from outside. Each takes an optional file name of the user folder.
class StateDumps {
  public:
    /// What is dumped. All outlive the dumps.
    struct Parts {
        Subsystems& subsystems;
        const FrameLoop& loop;
        const Presenter& presenter;
        const Stepper& stepper;
        const LevelSession& levels;
        const SaveGames& saves;
        const Pause& pause;
        const ScreenOverlay& overlay;
    };

    explicit StateDumps(const Parts& parts) : parts_(parts), subsystems_(parts.subsystems) {}

    /// dumpworld, dumpgui, dumpstate, dumpframe, dumpquadtree and dumptextures.
    void registerCommands();

  private:
    void dumpWorld(const std::string& file);
    void dumpGui(const std::string& file);
    void dumpState(const std::string& file);
    void dumpFrame(const std::string& file);
    void dumpQuadTree(const std::string& file);
    void dumpTextures(const std::string& file);

    void writeGame(TiXmlElement& root) const;
    void writeInput(TiXmlElement& root) const;
    void writeConsole(TiXmlElement& root) const;
    void writeRenderer(TiXmlElement& root) const;

    Parts parts_;
    Subsystems& subsystems_;
};

}  // namespace bc
