// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ColourCycler.h"
#include "hud/Hud.h"

#include <array>
#include <functional>
#include <string_view>
#include <vector>

namespace bc {

class GameVar;
class HudPlayer;
class HudWeaponNames;

/// The HUD of the game: status column, weapon panel, the weapon strip after a change of weapon,
/// two message lines, the red pulse of low health and the upgrade screen. Owned by the gameplay
/// controller, which forwards events to it; it reads the player and the level clock through what
/// it is given here.
class GameHUD final : public Hud {
  public:
    static constexpr int stripWeapons = 10;
    static constexpr int upgradeLevels = 12;
    // Milliseconds of level time.
    static constexpr float stripTime = 2000;
    static constexpr float messageTime = 2000;
    static constexpr float placedMessageTime = 5000;

    GameHUD();

    // What it looks at; none of it is owned and all but the player outlives the HUD.
    /// Null while there is none: values stay as they are and nothing pulses.
    void setPlayer(const HudPlayer* player) { player_ = player; }
    void setWeaponNames(const HudWeaponNames* names) { names_ = names; }
    /// Milliseconds since the level began; without one it is always 0.
    void setLevelTime(std::function<float()> levelTimeMs) { levelTimeMs_ = std::move(levelTimeMs); }
    /// Measures texts with its fonts; without one texts count as having no extent.
    void setRenderer(IRenderer* renderer) { renderer_ = renderer; }

    /// Makes all items, for the current window size. Needs the weapon names. Once; a second call
    /// starts anew.
    void build();
    void draw(IRenderer& renderer, float dt) override;
    /// Takes over the player's values and lets shown things expire.
    void update(float dt) override;

    /// Both messages and the weapon strip go with the next update.
    void clearTimers();
    /// Message line 1, for messageTime.
    void showMessage(std::string_view text);
    /// Shows the weapon strip with that weapon marked, for stripTime.
    void weaponSelected(int weaponId);
    /// Message line 2 with its pen start at a design position, for placedMessageTime.
    void showMessageAt(int x, int y, std::string_view text);
    /// The same at one of nine places: 0 to 7 counter-clockwise along the window's edge from the
    /// bottom left, 8 (and any other number) in the middle.
    void showMessageAnchored(std::string_view text, int anchor);
    void setUpgradeScreenShown(bool shown);
    [[nodiscard]] bool isUpgradeScreenShown() const { return upgradeScreenShown_; }

    /// Every item with what it shows and where, deadlines, strip, pulse and upgrade screen.
    void dump(TiXmlElement& element) const;

  protected:
    void onResize() override;

  private:
    void buildFrame(std::string_view label, int x, int width, int height);
    void buildStatusColumn();
    void buildWeaponPanel();
    void buildWeaponStrip();
    void buildUpgradeScreen();
    ImageHudItem* addStripIcon(std::string_view label, int x, int y, int width, int height,
                               std::string_view image);
    void placeStripMarker(int weaponId);
    void centreStripName();
    void updateStatusColumn(const HudPlayer& player);
    void updateWeaponPanel(const HudPlayer& player);
    void updateWeaponStripAlpha();
    void setWeaponStripVisible(bool shown);
    void updateUpgradeColours();
    void showUpgradeScreen(bool shown);
    void drawLowHealthFlash(IRenderer& renderer, float dt);
    void drawShades(IRenderer& renderer) const;
    /// Darkens a place at the top of the canvas.
    void shade(IRenderer& renderer, int left, int right, int bottom) const;
    [[nodiscard]] float designWidth(const TextHudItem& item, std::string_view text) const;
    [[nodiscard]] float designHeight(const TextHudItem& item) const;
    [[nodiscard]] float now() const { return levelTimeMs_ ? levelTimeMs_() : 0.0F; }

    /// A value with the picture in front of it.
    struct Readout {
        ImageHudItem* icon = nullptr;
        TextHudItem* value = nullptr;
        void show(bool shown) const {
            icon->visible = shown;
            value->visible = shown;
        }
    };

    const HudPlayer* player_ = nullptr;
    const HudWeaponNames* names_ = nullptr;
    IRenderer* renderer_ = nullptr;
    std::function<float()> levelTimeMs_;
    GameVar* lowHealthFlash_ = nullptr;
    ColourCycler pulse_;

    Readout health_;
    Readout armour_;
    Readout swarm_;
    Readout quad_;
    Readout invincibility_;
    Readout race_;
    ImageHudItem* weaponIcon_ = nullptr;
    TextHudItem* weaponName_ = nullptr;
    TextHudItem* ammunition_ = nullptr;
    /// The weapon whose picture and name the panel holds; 0 for none yet.
    int panelWeapon_ = 0;

    TextHudItem* message1_ = nullptr;
    TextHudItem* message2_ = nullptr;
    std::array<ImageHudItem*, stripWeapons> stripIcons_{};
    ImageHudItem* stripMarker_ = nullptr;
    TextHudItem* stripName_ = nullptr;

    ImageHudItem* upgradeBackground_ = nullptr;
    TextHudItem* upgradeTitle_ = nullptr;
    TextHudItem* upgradeLevel_ = nullptr;
    TextHudItem* upgradeCash_ = nullptr;
    TextHudItem* upgradeNext_ = nullptr;
    std::vector<UpgradeLevelText*> upgradeLines_;
    bool upgradeScreenShown_ = false;

    // Level times.
    float stripUntil_ = 0;
    float message1Until_ = 0;
    float message2Until_ = 0;
};

}  // namespace bc
