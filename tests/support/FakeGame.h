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
    void setWorldActive(bool active) override { worldActive = active; }
    void setQuit(bool value) override { quit = value; }

    World& getWorld() override { std::abort(); }
    SkyManager* getSkyManager() override { return nullptr; }
    void requestMapLoad(const std::string&, const std::string&) override {}
    bool isMapLoadPending() const override { return false; }
    const std::string& getCurrentLevel() const override { return none_; }
    void showCutscene(const std::string&) override {}
    void requestSave() override {}
    void requestLoadGame(const std::string&) override {}
    const std::string& getSaveName() const override { return none_; }
    void setOverlay(std::unique_ptr<OverlayEffect>) override {}

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
