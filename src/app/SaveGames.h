// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class TiXmlElement;

namespace bc {

class LevelSession;
class Pause;
class ScreenOverlay;
class Subsystems;
struct AppVariables;

/// Saved games: the record of a running level in saves/NAME.xml, its thumbnail in saves/NAME.png,
/// and the way back from one into a running level. Names that would leave saves/ are refused.
class SaveGames {
  public:
    /// All outlive the object; the variables are bound before the first save.
    SaveGames(Subsystems& subsystems, const AppVariables& variables, LevelSession& levels,
              const Pause& pause, ScreenOverlay& overlay);

    /// savegame and loadgame.
    void registerCommands();
    /// Saves after the next buffer swap, under the name of the last save ("temp" without one).
    void requestSave() { requestSaveAs(saveName_); }
    /// Loads when a level runs, and fades in from black.
    void requestLoadGame(const std::string& name);
    /// Writes the save that was asked for. When it cannot be written, a line on the console says
    /// so, an older file of that name stays whole, and getSaveName is what it was before the
    /// request.
    void saveGame();
    /// Loads a save at once. False, with a line on the console and in the log, when it cannot be
    /// read; the running level stays then.
    bool loadGame(const std::string& name);
    /// Carries out the request to load, if there is one. After a failure a dead player gets the
    /// level from its start. False when there was none.
    bool loadRequestedGame();

    [[nodiscard]] bool isSavePending() const { return savePending_; }
    [[nodiscard]] bool isLoadPending() const { return loadPending_; }
    [[nodiscard]] const std::string& getSaveName() const { return saveName_; }

  private:
    void requestSaveAs(const std::string& name);
    void restorePlayer(const TiXmlElement& node, bool revives);

    Subsystems& subsystems_;
    const AppVariables& vars_;
    LevelSession& levels_;
    const Pause& pause_;
    ScreenOverlay& overlay_;
    std::string saveName_;
    /// In force again when what was asked for under saveName_ cannot be written or read.
    std::string lastSaveName_;
    bool loadPending_ = false;
    bool savePending_ = false;
};

}  // namespace bc
