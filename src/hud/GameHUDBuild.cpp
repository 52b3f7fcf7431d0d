// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The items of the game's HUD: what there is, where it stands and how it starts.
#include "command/GameVar.h"
#include "hud/GameHUD.h"
#include "hud/HudPlayer.h"

#include <string>

namespace bc {

namespace {

constexpr RGBAColour white{255, 255, 255, 255};
constexpr RGBAColour red{255, 0, 0, 255};

// Design units. Everything of a column hangs from the top-left corner of its frame.
constexpr int statusFrameX = 5;
constexpr int weaponFrameX = 490;
constexpr int frameTop = 470;
constexpr int frameEdge = 10;
constexpr int statusFrameWidth = 100;
constexpr int statusFrameHeight = 50;
constexpr int weaponFrameWidth = 125;
constexpr int weaponFrameHeight = 60;
constexpr int iconIndent = 4;
constexpr int iconDrop = 8;
constexpr int iconSize = 16;
constexpr int rowHeight = 20;
/// The swarm stands a little apart from health and armour.
constexpr int swarmGap = 24;

constexpr int stripX = 150;
constexpr int stripY = 472;
constexpr int stripStep = 34;

std::string imagePath(std::string_view name) {
    return std::string("data/images/").append(name);
}

void setUpImage(ImageHudItem& item, int x, int y, int width, int height, std::string_view name) {
    item.setPosition(x, y);
    item.setSize(width, height);
    item.setImage(imagePath(name), ".png");
    item.setColour(white);
    item.clamp = true;
}

void setUpText(TextHudItem& item, int x, int y, int size, const RGBAColour& colour, bool shadow) {
    item.setPosition(x, y);
    item.setFont("vera", size);
    item.setColour(colour);
    item.shadow = shadow;
}

}  // namespace

void GameHUD::build() {
    removeItems();
    upgradeLines_.clear();
    panelWeapon_ = 0;
    lowHealthFlash_ = vars().getVar("lowhealthflash");
    buildStatusColumn();
    buildWeaponPanel();
    buildWeaponStrip();
    buildUpgradeScreen();
    resize(windowWidth(), windowHeight());
}

void GameHUD::buildFrame(std::string_view label, int x, int width, int height) {
    const auto part = [&](const char* side, int partX, int partWidth) {
        auto* item = make<ImageHudItem>(std::string(label) + " frame " + side);
        setUpImage(*item, partX, frameTop, partWidth, height, std::string("iconbg") + side);
        item->visible = false;
    };
    part("left", x, frameEdge);
    part("centre", x + frameEdge, width);
    part("right", x + frameEdge + width, frameEdge);
}

void GameHUD::buildStatusColumn() {
    buildFrame("status", statusFrameX, statusFrameWidth, statusFrameHeight);
    const int iconX = statusFrameX + frameEdge + iconIndent;
    int y = frameTop - iconDrop;
    const auto row = [&](std::string_view label, std::string_view image, const RGBAColour& colour,
                         bool shown) {
        Readout readout;
        readout.icon = make<ImageHudItem>(std::string(label) + " icon");
        setUpImage(*readout.icon, iconX, y, iconSize, iconSize, image);
        readout.value = make<TextHudItem>(label);
        setUpText(*readout.value, iconX + 20, y - 12, 14, colour, true);
        readout.show(shown);
        return readout;
    };
    health_ = row("health", "health", white, true);
    health_.value->setText("150");
    y -= rowHeight;
    armour_ = row("armour", "armour", red, true);
    y -= swarmGap;
    swarm_ = row("swarm", "swarmtimer", red, true);
    y -= rowHeight;
    quad_ = row("quad", "quad", red, false);
    y -= rowHeight;
    invincibility_ = row("invincibility", "invincibility", red, false);
    y -= rowHeight;
    race_ = row("race", "racetimer", red, false);
}

void GameHUD::buildWeaponPanel() {
    buildFrame("weapon", weaponFrameX, weaponFrameWidth, weaponFrameHeight);
    const int iconX = weaponFrameX + frameEdge + iconIndent;
    const int iconY = frameTop - iconDrop;
    weaponIcon_ = make<ImageHudItem>("weapon icon");
    setUpImage(*weaponIcon_, iconX, iconY, 64, 32, "rocketlauncher");
    const int nameY = iconY - 44;
    weaponName_ = make<TextHudItem>("weapon name");
    setUpText(*weaponName_, iconX, nameY, 18, red, true);
    weaponName_->setText("rocket launcher");
    ammunition_ = make<TextHudItem>("ammunition");
    setUpText(*ammunition_, iconX + 72, iconY - 24, 18, red, true);
    ammunition_->setText("23");
    message1_ = make<TextHudItem>("message 1");
    setUpText(*message1_, iconX, nameY - 24, 18, red, true);
    message1_->visible = false;
    message2_ = make<TextHudItem>("message 2");
    setUpText(*message2_, 0, 0, 18, red, false);
    message2_->outline = true;
    message2_->visible = false;
}

void GameHUD::buildWeaponStrip() {
    for (int i = 0; i < stripWeapons; ++i) {
        const std::string name = names_ ? names_->hudShortName(i + 1) : std::string();
        stripIcons_[static_cast<std::size_t>(i)] = addStripIcon(
            "strip " + std::to_string(i + 1), stripX + stripStep * i, stripY, 32, 16, name);
    }
    stripMarker_ = addStripIcon("strip marker", stripX, stripY, 40, 24, "weaponselected");
    stripName_ = make<TextHudItem>("strip name");
    setUpText(*stripName_, 100, 444, 18, red, true);
    stripName_->visible = false;
}

ImageHudItem* GameHUD::addStripIcon(std::string_view label, int x, int y, int width, int height,
                                    std::string_view image) {
    auto* item = make<ImageHudItem>(label);
    setUpImage(*item, x, y, width, height, image);
    item->visible = false;
    return item;
}

void GameHUD::placeStripMarker(int weaponId) {
    // Four units around the icon of that weapon.
    stripMarker_->setPosition(stripX - 4 + stripStep * (weaponId - 1), stripY + 4);
    placeItem(*stripMarker_, stripMarker_->design().x, stripMarker_->design().y);
}

void GameHUD::buildUpgradeScreen() {
    upgradeBackground_ = make<ImageHudItem>("upgrades background");
    setUpImage(*upgradeBackground_, 0, 0, 280, 350, "techbase");
    upgradeBackground_->setColour(50, 50, 100, 255);
    const auto header = [this](std::string_view label, std::string_view text, int size) {
        auto* item = make<TextHudItem>(label);
        setUpText(*item, 0, 0, size, white, true);
        item->setText(text);
        return item;
    };
    upgradeTitle_ = header("upgrades title", "Upgrades", 18);
    upgradeLevel_ = header("upgrades level", "Current Level : 1", 14);
    upgradeCash_ = header("upgrades cash", "Current Cash : ", 14);
    upgradeNext_ = header("upgrades next", "Cash Until Next Level : ", 14);
    for (int level = 1; level <= upgradeLevels; ++level) {
        auto* line = make<UpgradeLevelText>("upgrade " + std::to_string(level), level);
        setUpText(*line, 0, 0, 14, white, false);
        upgradeLines_.push_back(line);
    }
    showUpgradeScreen(false);
}

void GameHUD::onResize() {
    if (!upgradeBackground_)
        return;
    if (!stripName_->text().empty())
        centreStripName();
    // Letters grow by whole steps, so the height of a line in design units follows the window.
    const auto lineHeight = [this](const TextHudItem& item) {
        return static_cast<float>(item.lineHeight() * canvasHeight) /
               static_cast<float>(windowHeight());
    };
    constexpr int textX = 200;
    upgradeBackground_->setPosition(180, 415);
    float top = 410;
    for (TextHudItem* item : {upgradeTitle_, upgradeLevel_, upgradeCash_, upgradeNext_}) {
        const float pen = top - lineHeight(*item);
        item->setPosition(textX, static_cast<int>(pen));
        top = pen - 5;
    }
    int y = static_cast<int>(top + 5 - 15 - lineHeight(*upgradeLines_.front()));
    for (UpgradeLevelText* line : upgradeLines_) {
        line->setPosition(textX, y);
        y -= 20;
    }
}

}  // namespace bc
