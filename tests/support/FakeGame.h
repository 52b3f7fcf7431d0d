// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ports/IGUI.h"
#include "ports/IGame.h"

#include <cstdlib>

namespace bc {

/// The real one stands on a floor that these tests do not link.
class OverlayEffect {};

/// Only what the console floor asks of the application works.
class FakeGame final : public IGame {
  public:
    bool levelLoaded = false;
    bool worldActive = false;
    bool quit = false;

    bool isLevelLoaded() const override { return levelLoaded; }
    bool isWorldActive() const override { return worldActive; }
    void setWorldActive(bool active) override { worldActive = active; }
    void setQuit(bool value) override { quit = value; }

    ISound* getSound() override { return nullptr; }
    IRenderer* getRenderer() override { return nullptr; }
    InputManager* getInputManager() override { return nullptr; }
    IGUI* getGUIManager() override { return nullptr; }
    Console* getConsole() override { return nullptr; }
    GameInput* getGameInput() override { return nullptr; }
    BasicTimer* getTimer() override { return nullptr; }
    SkyManager* getSkyManager() override { return nullptr; }
    Body* getPlayer() override { return nullptr; }
    void setPlayer(Body*) override {}
    BodyFactory* getBodyFactory() override { return nullptr; }
    IGameplay* getGameplay() override { return nullptr; }
    World& getWorld() override { std::abort(); }
    void requestMapLoad(const std::string&, const std::string&) override {}
    bool isMapLoadPending() const override { return false; }
    void requestSave() override {}
    void requestLoadGame(const std::string&) override {}
    void showCutscene(const std::string&) override {}
    void pauseGame() override {}
    void resumeGame() override {}
    const std::string& getCurrentLevel() const override { return none_; }
    const std::string& getSaveName() const override { return none_; }
    void setSaveName(const std::string&) override {}
    bool isPaused() const override { return false; }
    void setOverlay(std::unique_ptr<OverlayEffect>) override {}
    void endOverlay() override {}
    void startFadeIn() override {}

  private:
    std::string none_;
};

class FakeGUI final : public IGUI {
  public:
    bool visible = true;
    bool isVisible() const override { return visible; }
    void setVisible(bool value) override { visible = value; }
    void draw(IRenderer&) override {}
    void setScreenSize(float, float) override {}
};

}  // namespace bc
