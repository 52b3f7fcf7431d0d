// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class TiXmlElement;

namespace bc {

class Game;

/// The console commands that write what goes on inside to files, for people and tests that look
/// at a run from outside. Each takes an optional file name of the user folder.
class GameDumps {
  public:
    explicit GameDumps(Game& game) : game_(game) {}
    /// dumpworld, dumpgui, dumpstate, dumpframe, dumpquadtree, trace and sees.
    void registerCommands();

  private:
    void dumpWorld(const std::string& file);
    void dumpGui(const std::string& file);
    void dumpState(const std::string& file);
    void dumpFrame(const std::string& file);
    void dumpQuadTree(const std::string& file);
    void trace();
    void sees();

    void writeParticles(TiXmlElement& root) const;
    void writeRace(TiXmlElement& root) const;
    void writeLoop(TiXmlElement& root) const;
    void writeInput(TiXmlElement& root) const;
    void writeConsole(TiXmlElement& root) const;
    void writeRenderer(TiXmlElement& root) const;

    Game& game_;
};

}  // namespace bc
