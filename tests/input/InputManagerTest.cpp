// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "input/Console.h"
#include "input/InputManager.h"
#include "support/ConsoleFixture.h"
#include "support/FakeGame.h"
#include "support/RecordingRenderer.h"

#include <gmock/gmock.h>

namespace bc {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes in one list, shared by all targets, what it is told.
class NotingTarget : public InputTarget {
  public:
    NotingTarget(std::string name, std::vector<std::string>& notes, const IRenderer& renderer)
        : name_(std::move(name)), notes_(notes), renderer_(renderer) {}

    void mouseMove(float x, float y, float relX, float relY) override {
        InputTarget::mouseMove(x, y, relX, relY);
        note("move");
    }
    void mouseDown(float, float, int button) override { note("down " + std::to_string(button)); }
    void mouseUp(float, float, int button) override { note("up " + std::to_string(button)); }
    void keyDown(int sym, int unicode, const std::string& key) override {
        note("keydown " + std::to_string(sym) + ' ' + std::to_string(unicode) + ' ' + key);
    }
    void keyUp(int sym, int unicode, const std::string& key) override {
        note("keyup " + std::to_string(sym) + ' ' + std::to_string(unicode) + ' ' + key);
    }
    void onLoseFocus() override { note("lost"); }
    void onGainFocus() override { note("gained"); }

  private:
    void note(const std::string& what) {
        const auto& view = static_cast<const test::RecordingRenderer&>(renderer_);
        notes_.push_back(name_ + ' ' + what + (view.state.overlay ? " in 2D" : ""));
    }

    std::string name_;
    std::vector<std::string>& notes_;
    const IRenderer& renderer_;
};

class InputManagerTest : public ConsoleFixture {
  protected:
    InputManagerTest() {
        gui.uses2D = true;
        input.init(&game, &renderer, &guiManager, &console);
        put(data() + "/data/keys.xml",
            "<k><a sdlcode='27' keyname='OLD'/><a sdlcode='27' keyname='ESCAPE'/>"
            "<a sdlcode='96' keyname='`'/><b sdlcode='97' keyname='A'/></k>");
        logOf([this] { input.loadKeymap("data/keys.xml"); });
        input.registerTarget("gui", &gui);
        input.registerTarget("game", &play);
        input.registerTarget("console", &console);
    }
    /// Play as it is after the menus were hidden.
    void startPlay() {
        game.levelLoaded = game.worldActive = true;
        guiManager.visible = false;
        input.assignTarget("game");
        notes.clear();
    }
    void press(int sym, int unicode = 0) {
        logOf([&] { input.keyEvent(true, sym, unicode); });
    }

    std::vector<std::string> notes;
    test::RecordingRenderer renderer{800, 600};
    FakeGame game;
    FakeGUI guiManager;
    Console console;
    InputManager input;
    NotingTarget gui{"gui", notes, renderer};
    NotingTarget play{"game", notes, renderer};
};

TEST_F(InputManagerTest, KeysGoToTheCurrentTargetWithTheirNames) {
    input.keyEvent(true, 97, 'a');
    input.assignTarget("game");
    input.keyEvent(true, 97, 'A');
    input.keyEvent(true, 500, 0);
    input.keyEvent(false, 97, 0);
    EXPECT_THAT(notes, ElementsAre("gui keydown 97 97 A", "game keydown 97 65 A",
                                   "game keydown 500 0 ", "game keyup 97 97 A"));
    EXPECT_EQ(input.findKey("escape"), 27);
    EXPECT_EQ(input.findKey("OLD"), std::nullopt) << "the later name replaced it";
}

TEST_F(InputManagerTest, EscapeDuringPlayBringsUpTheMenus) {
    startPlay();
    EXPECT_EQ(logOf([this] { input.keyEvent(true, 27, 27); }), "Show GUI\n");
    EXPECT_TRUE(guiManager.visible);
    EXPECT_FALSE(game.worldActive);
    EXPECT_EQ(renderer.named("grabThumbnail").size(), 1U);
    EXPECT_EQ(input.getTarget(), "gui");
    EXPECT_THAT(notes, ElementsAre("game lost", "gui gained")) << "no target sees the key";
    // The release is nobody's special key.
    input.keyEvent(false, 27, 0);
    EXPECT_EQ(notes.back(), "gui keyup 27 27 ESCAPE");
}

TEST_F(InputManagerTest, EscapeInTheMenusGoesToThem) {
    input.assignTarget("game");
    press(27, 27);
    EXPECT_THAT(notes, ElementsAre("gui keydown 27 27 ESCAPE"));
    EXPECT_THAT(renderer.calls, IsEmpty());
}

TEST_F(InputManagerTest, BackquoteOpensTheConsoleOverAnyTargetAndGoesBack) {
    for (const char* from : {"game", "gui"}) {
        input.assignTarget(from);
        notes.clear();
        press(96, '`');
        EXPECT_TRUE(console.isOpen());
        EXPECT_EQ(input.getTarget(), "console");
        EXPECT_THAT(notes, ElementsAre(std::string(from) + " lost"));
        press('x', 'x');
        EXPECT_EQ(console.getInput(), "x") << "the backquote itself typed nothing";
        guiManager.visible = false;
        notes.clear();
        press(27, 27);
        EXPECT_FALSE(guiManager.visible) << "the console takes Escape as any key";
        press(96, '`');
        EXPECT_FALSE(console.isOpen());
        EXPECT_EQ(console.getInput(), "");
        EXPECT_EQ(input.getTarget(), from);
        EXPECT_THAT(notes, ElementsAre(std::string(from) + " keydown 96 96 `"))
            << "it is delivered to where it leads, without a change of focus";
    }
}

TEST_F(InputManagerTest, HidingTheMenusNeedsALevel) {
    input.hideGUI();
    EXPECT_TRUE(guiManager.visible);
    EXPECT_EQ(input.getTarget(), "gui");
    game.levelLoaded = true;
    EXPECT_EQ(logOf([this] { input.hideGUI(); }), "Hide GUI\n");
    EXPECT_FALSE(guiManager.visible);
    EXPECT_TRUE(game.worldActive);
    EXPECT_EQ(input.getTarget(), "game");
    EXPECT_THAT(notes, IsEmpty());
    EXPECT_EQ(logOf([this] { input.hideGUI(); }), "") << "hidden already";
}

TEST_F(InputManagerTest, SwitchingTellsLoserAndGainerInThisOrder) {
    input.setTarget("game");
    EXPECT_EQ(input.getPreviousTarget(), "gui");
    input.setTarget("nowhere");
    EXPECT_EQ(input.getPreviousTarget(), "game");
    press(97);
    input.mouseMotion(1, 2, 3, 4);
    input.mouseButtonDown(1, 2, 1);
    input.setTarget("gui");
    EXPECT_THAT(notes, ElementsAre("gui lost", "game gained", "game lost", "gui gained"));
}

TEST_F(InputManagerTest, MousePositionsReachTheTargetBeforeTheMotion) {
    input.mouseMotion(30, 40, 3, -4);
    EXPECT_EQ(gui.mouseX, 30);
    EXPECT_EQ(gui.mouseRelY, -4);
    EXPECT_EQ(gui.mouse2D.toString(), "30,40,0");
    EXPECT_EQ(gui.mouseWorld.toString(), "30,40,0");
    EXPECT_EQ(input.getMouse2D().toString(), "30,40,0");
    input.mouseButtonDown(1, 2, 4);
    input.mouseButtonUp(1, 2, 1);
    input.assignTarget("game");
    input.mouseMotion(50, 60, 1, 1);
    input.mouseButtonDown(1, 2, 1);
    EXPECT_THAT(notes, ElementsAre("gui move in 2D", "gui down 4 in 2D", "gui up 1 in 2D",
                                   "game move", "game down 1"));
    EXPECT_EQ(play.mouseWorld.toString(), "50,60,0");
    EXPECT_FALSE(renderer.state.overlay);
}

TEST_F(InputManagerTest, ModifiersFollowTheMask) {
    const int bits[] = {0x1000, 0x2000, 0x4000, 0x0040, 0x0080, 0x0001,
                        0x0002, 0x0100, 0x0200, 0x0400, 0x0800};
    for (int expected = 0; expected < 11; ++expected) {
        input.updateModifiers(bits[expected]);
        for (int i = -1; i < 20; ++i)
            EXPECT_EQ(input.isModifierDown(i), i == expected) << i;
    }
}

TEST_F(InputManagerTest, WithoutAKeymapKeysHaveNoNames) {
    InputManager bare;
    EXPECT_THAT(logOf([&] { bare.loadKeymap("data/none.xml"); }),
                testing::EndsWith("Could not load keymap file: data/none.xml\n"));
    EXPECT_EQ(bare.keyName(27), "");
    bare.registerTarget("gui", &gui);
    bare.keyEvent(true, 27, 27);
    bare.keyEvent(true, 96, 96);
    bare.mouseMotion(1, 1, 1, 1);
    EXPECT_THAT(notes, ElementsAre("gui keydown 27 27 ", "gui keydown 96 96 ", "gui move"))
        << "works without any other subsystem";
}

}  // namespace
}  // namespace bc
