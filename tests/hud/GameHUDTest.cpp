// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "command/GameVar.h"
#include "hud/GameHUD.h"
#include "hud/HudPlayer.h"
#include "support/AllocationCounter.h"
#include "support/RecordingRenderer.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <map>
#include <string>

namespace bc {
namespace {

struct FakePlayer final : HudPlayer {
    int health = 100, armour = 25, weapon = 2, level = 0, cash = 0, toNext = 50;
    bool dead = false, race = false;
    float quadMs = -1, invincibilityMs = -1, swarmMs = 0, raceMs = 0;
    std::map<int, int> owned{{1, 1}, {2, 1}, {4, 1}, {5, 1}};
    std::map<int, int> ammo{{1, -1}, {2, -1}, {3, 9}, {4, 1}, {5, 0}};

    int hudHealth() const override { return health; }
    int hudArmour() const override { return armour; }
    bool hudDead() const override { return dead; }
    bool hudQuadActive() const override { return quadMs >= 0; }
    float hudQuadMsLeft() const override { return quadMs; }
    bool hudInvincibilityActive() const override { return invincibilityMs >= 0; }
    float hudInvincibilityMsLeft() const override { return invincibilityMs; }
    float hudSwarmMsLeft() const override { return swarmMs; }
    int hudActiveWeapon() const override { return weapon; }
    bool hudOwnsWeapon(int id) const override { return owned.contains(id); }
    int hudAmmo(int id) const override { return ammo.contains(id) ? ammo.at(id) : 0; }
    int hudUpgradeLevel() const override { return level; }
    int hudCash() const override { return cash; }
    int hudCashToNextLevel() const override { return toNext; }
    std::string hudUpgradeTitle(int l) const override { return "title " + std::to_string(l); }
    bool hudRaceActive() const override { return race; }
    float hudRaceMs() const override { return raceMs; }
};

struct FakeNames final : HudWeaponNames {
    std::string hudShortName(int id) const override { return "w" + std::to_string(id); }
    std::string hudDisplayName(int id) const override { return "Weapon " + std::to_string(id); }
};

class GameHUDTest : public testing::Test {
  protected:
    GameHUDTest() {
        vars().createOrSet("lowhealthflash", "1", "");
        hud.setPlayer(&player);
        hud.setWeaponNames(&names);
        hud.setRenderer(&renderer);
        hud.setLevelTime([this] { return time; });
        hud.build();
    }
    ~GameHUDTest() override { vars().clearVars(); }

    void updateAt(float levelTime) {
        time = levelTime;
        hud.update(0.025F);
    }
    const HudItem& item(const std::string& label) const {
        for (const auto& candidate : hud.items()) {
            TiXmlElement element("item");
            candidate->dump(element);
            if (element.Attribute("name") == label)
                return *candidate;
        }
        ADD_FAILURE() << "no item " << label;
        return *hud.items().front();
    }
    std::string text(const std::string& label) const {
        return dynamic_cast<const TextHudItem&>(item(label)).text();
    }
    std::string image(const std::string& label) const {
        return dynamic_cast<const ImageHudItem&>(item(label)).image();
    }
    bool shown(const std::string& label) const { return item(label).visible; }
    /// Alphas of the pulse over so many frames of 10 ms, or none when nothing pulses.
    std::vector<float> pulse(int frames) {
        renderer.calls.clear();
        for (int i = 0; i < frames; ++i)
            hud.draw(renderer, 0.01F);
        std::vector<float> alphas;
        for (const test::DrawCall& call : renderer.drawn("data/particles/cloud.png"))
            alphas.push_back(call.colour.a);
        return alphas;
    }

    test::RecordingRenderer renderer;
    FakePlayer player;
    FakeNames names;
    float time = 0;
    GameHUD hud;
};

TEST_F(GameHUDTest, EveryItemStandsAtItsPlaceAtEveryWindowSize) {
    struct Place {
        const char* label;
        int box[4];
    };
    // The rows of the status column hang below each other; of each one is enough.
    const Place places[] = {{"status frame left", {5, 470, 10, 50}},
                            {"status frame right", {115, 470, 10, 50}},
                            {"health icon", {19, 462, 16, 16}},
                            {"health", {39, 450, 0, 0}},
                            {"armour icon", {19, 442, 16, 16}},
                            {"swarm icon", {19, 418, 16, 16}},
                            {"quad icon", {19, 398, 16, 16}},
                            {"invincibility", {39, 366, 0, 0}},
                            {"race", {39, 346, 0, 0}},
                            {"weapon frame right", {625, 470, 10, 60}},
                            {"weapon icon", {504, 462, 64, 32}},
                            {"weapon name", {504, 418, 0, 0}},
                            {"ammunition", {576, 438, 0, 0}},
                            {"message 1", {504, 394, 0, 0}},
                            {"strip 1", {150, 472, 32, 16}},
                            {"strip 10", {456, 472, 32, 16}},
                            {"strip name", {100, 444, 0, 0}},
                            {"upgrades background", {180, 415, 280, 350}},
                            {"upgrades title", {200, 392, 0, 0}},
                            {"upgrades next", {200, 335, 0, 0}},
                            {"upgrade 1", {200, 306, 0, 0}},
                            {"upgrade 12", {200, 86, 0, 0}}};
    for (const int factor : {1, 2, 3}) {
        hud.resize(640 * factor, 480 * factor);
        for (const Place& place : places) {
            const HudItem::Box& box = item(place.label).pixels();
            const int pixels[] = {box.x, box.y, box.width, box.height};
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(pixels[i], place.box[i] * factor) << place.label << " number " << i;
        }
    }
    hud.resize(800, 600);
    EXPECT_EQ(item("health icon").pixels().x, 23);
    EXPECT_EQ(item("health icon").pixels().y, 577);
}

TEST_F(GameHUDTest, ShowsWhatThePlayerHas) {
    player.swarmMs = 999;
    updateAt(0);
    EXPECT_EQ(text("health") + '/' + text("armour") + '/' + text("swarm"), "100/25/Ready!");
    EXPECT_EQ(image("weapon icon"), "data/images/w2.png");
    EXPECT_EQ(text("weapon name") + ' ' + text("ammunition"), "Weapon 2 INF");
    EXPECT_FALSE(shown("quad") || shown("quad icon") || shown("invincibility") || shown("race"));

    player.swarmMs = 1000;
    player.quadMs = 29999;
    player.invincibilityMs = 500;
    player.race = true;
    player.raceMs = 12525;
    player.weapon = 7;
    updateAt(0);
    EXPECT_EQ(text("swarm") + '/' + text("quad") + '/' + text("invincibility"), "1/29/0");
    EXPECT_EQ(text("race"), "12.525");
    EXPECT_TRUE(shown("quad icon") && shown("invincibility icon") && shown("race icon"));
    EXPECT_EQ(text("weapon name") + ' ' + text("ammunition"), "Weapon 7 0");

    hud.setPlayer(nullptr);
    player.health = 1;
    updateAt(0);
    EXPECT_EQ(text("health"), "100");
}

TEST_F(GameHUDTest, DimsWhatCannotBeFired) {
    updateAt(0);
    // Owned and endless, owned and endless, not owned, owned with one round, owned and empty.
    const float alphas[] = {255, 255, 100, 255, 100};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(item("strip " + std::to_string(i + 1)).colour().a, alphas[i]) << i + 1;
}

TEST_F(GameHUDTest, StripStaysTwoSecondsFromTheLastChange) {
    time = 1000;
    hud.weaponSelected(4);
    EXPECT_TRUE(shown("strip 10") && shown("strip marker") && shown("strip name"));
    EXPECT_EQ(item("strip marker").pixels().x, 112 + 34 * 4);
    EXPECT_EQ(item("strip marker").pixels().y, 476);
    // Eight letters nine pixels wide around the middle.
    EXPECT_EQ(text("strip name"), "Weapon 4");
    EXPECT_EQ(item("strip name").pixels().x, 320 - 36);
    EXPECT_EQ(item("strip name").pixels().y, 444);
    hud.resize(1024, 480);
    EXPECT_EQ(item("strip name").pixels().x, (320 - 22) * 1024 / 640);
    hud.resize(640, 480);
    EXPECT_EQ(item("strip name").pixels().x, 320 - 36);
    updateAt(2500);
    EXPECT_TRUE(shown("strip 1"));
    hud.weaponSelected(11);
    EXPECT_EQ(item("strip marker").pixels().x, 112 + 34 * 11);
    updateAt(4499);
    EXPECT_TRUE(shown("strip 1"));
    updateAt(4500);
    EXPECT_FALSE(shown("strip 1") || shown("strip marker") || shown("strip name"));
    for (const int none : {0, -1, 12, 2000000000}) {
        hud.weaponSelected(none);
        EXPECT_FALSE(shown("strip 1")) << none;
    }
}

TEST_F(GameHUDTest, MessagesExpireOnTheirOwn) {
    time = 500;
    hud.showMessage("first");
    hud.showMessageAt(30, 40, "second");
    updateAt(2499);
    EXPECT_TRUE(shown("message 1") && shown("message 2"));
    updateAt(2500);
    EXPECT_FALSE(shown("message 1"));
    updateAt(5499);
    EXPECT_TRUE(shown("message 2"));
    EXPECT_EQ(item("message 2").pixels().x, 30);
    updateAt(5500);
    EXPECT_FALSE(shown("message 2"));

    hud.showMessage("first");
    hud.showMessageAt(0, 0, "second");
    hud.weaponSelected(1);
    hud.clearTimers();
    updateAt(5500);
    EXPECT_FALSE(shown("message 1") || shown("message 2") || shown("strip 1"));

    hud.showMessage(std::string(100000, 'x'));
    EXPECT_EQ(text("message 1").size(), 512U);
}

TEST_F(GameHUDTest, AnchoredMessagesLieAlongTheEdges) {
    // "12345678" is 72 pixels wide and 18 high.
    struct Case {
        int window[2];
        int scale, width, height;
    };
    for (const Case& c :
         {Case{{640, 480}, 1, 72, 18}, Case{{1024, 768}, 1, 45, 11}, Case{{1280, 960}, 2, 72, 18},
          // 67.5 and 16.875 design units
          Case{{2048, 1536}, 3, 67, 16}}) {
        hud.resize(c.window[0], c.window[1]);
        const float unit = 640 * static_cast<float>(c.scale) / static_cast<float>(c.window[0]);
        const float half = 72 * unit / 2;
        const float halfHeight = 18 * unit / 2;
        const int mx = 320 - static_cast<int>(half);
        const int my = 240 - static_cast<int>(halfHeight);
        const int rx = 640 - c.width - 10;
        const int ty = 480 - c.height - 10;
        const int places[][2] = {{10, 10}, {mx, 10}, {rx, 10}, {rx, my}, {rx, ty},
                                 {mx, ty}, {10, ty}, {10, my}, {mx, my}, {mx, my}};
        for (int anchor = 0; anchor < 10; ++anchor) {
            // Whatever font was used last.
            renderer.getFontRenderer()->setFont("vera", 12);
            hud.showMessageAnchored("12345678", anchor);
            EXPECT_EQ(item("message 2").design().x, places[anchor][0]) << anchor;
            EXPECT_EQ(item("message 2").design().y, places[anchor][1]) << anchor;
        }
        hud.showMessageAnchored("12345678", -5);
        EXPECT_EQ(item("message 2").design().x, mx);
    }
}

TEST_F(GameHUDTest, PulsesRedWhenHealthIsLow) {
    struct Case {
        int health;
        float low, high;
    };
    for (const Case& c : {Case{55, 30, 90}, Case{40, 30, 90}, Case{36, 30, 90}, Case{35, 50, 150},
                          Case{20, 50, 150}}) {
        player.health = c.health;
        pulse(200);
        const std::vector<float> alphas = pulse(300);
        ASSERT_EQ(alphas.size(), 300U);
        EXPECT_EQ(*std::min_element(alphas.begin(), alphas.end()), c.low) << c.health;
        EXPECT_EQ(*std::max_element(alphas.begin(), alphas.end()), c.high) << c.health;
        float step = 0;
        for (std::size_t i = 1; i < alphas.size(); ++i)
            step = std::max(step, std::abs(alphas[i] - alphas[i - 1]));
        EXPECT_NEAR(step, c.health < 36 ? 5.12F : 1.5F, 1) << c.health;
    }
    const test::DrawCall call = renderer.drawn("data/particles/cloud.png").front();
    EXPECT_EQ(call.numbers, (std::vector<float>{0, 480, 0, 640, 480}));
    EXPECT_TRUE(call.overlay && call.additive && call.clamp);
    EXPECT_EQ(call.colour.r, 255);

    player.dead = true;
    EXPECT_TRUE(pulse(1).empty());
    player.dead = false;
    player.health = 56;
    EXPECT_TRUE(pulse(1).empty());
    player.health = 20;
    vars().setVar("lowhealthflash", "0");
    EXPECT_TRUE(pulse(1).empty());
}

TEST_F(GameHUDTest, UpgradeScreenShowsLevelsReachedInWhite) {
    player.level = 3;
    player.cash = 120;
    player.toNext = 30;
    EXPECT_FALSE(shown("upgrade 1"));
    hud.setUpgradeScreenShown(true);
    hud.draw(renderer, 0);
    EXPECT_EQ(text("upgrades level"), "Current Level : 3");
    EXPECT_EQ(text("upgrades cash"), "Current Cash : 120");
    EXPECT_EQ(text("upgrades next"), "Cash Until Next Level : 30");
    EXPECT_EQ(text("upgrade 12"), "title 12");
    EXPECT_EQ(item("upgrade 3").colour(), RGBAColour(255, 255, 255, 255));
    EXPECT_EQ(item("upgrade 4").colour(), RGBAColour(100, 100, 100, 255));
    hud.setUpgradeScreenShown(false);
    EXPECT_FALSE(shown("upgrades background") || shown("upgrades title") || shown("upgrade 12"));
}

TEST_F(GameHUDTest, FramesAllocateNothingOnceWarm) {
    renderer.recording = false;
    player.race = true;
    player.quadMs = 30000;
    hud.weaponSelected(3);
    hud.showMessage("a message that is longer than a short string");
    hud.setUpgradeScreenShown(true);
    const auto frame = [&](int i) {
        player.health = 20 + i % 30;
        player.quadMs -= 16;
        player.raceMs += 16.5F;
        player.swarmMs = static_cast<float>(i % 25) * 1000;
        player.weapon = 2 + i % 2;
        updateAt(static_cast<float>(i));
        hud.draw(renderer, 0.016F);
    };
    frame(0);
    frame(1);
    const test::AllocationCounter counter;
    player.weapon = 2;
    for (int i = 2; i < 200; i += 2)
        frame(i);
    EXPECT_EQ(counter.count(), 0);
}

}  // namespace
}  // namespace bc
