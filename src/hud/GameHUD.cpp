// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "hud/GameHUD.h"

#include "command/GameVar.h"
#include "core/Text.h"
#include "hud/HudPlayer.h"
#include "ports/FontRenderer.h"
#include "ports/IRenderer.h"
#include "resources/XmlAttributes.h"

#include <tinyxml.h>

#include <string>

namespace bc {

namespace {

/// From here down the screen pulses red, and from the second on it does so fast.
constexpr int lowHealth = 55;
constexpr int veryLowHealth = 35;

constexpr int lastWeapon = 11;
/// Longer messages are cut: no window shows that much in one line.
constexpr std::size_t longestMessage = 512;

const std::string pulseImage = "data/particles/cloud.png";

// What lies behind the values, so that they are read before bright scenery too.
const std::string shadeImage = "data/images/hudshade.png";
constexpr int shadeAlpha = 125;
/// How far the picture reaches around its even middle on each side, in sizes of the middle.
constexpr float shadeFringe = 0.3F;

std::string wholeSeconds(float ms) {
    return std::to_string(static_cast<int>(ms / 1000));
}

}  // namespace

GameHUD::GameHUD() {
    pulse_.setMin(50);
    pulse_.setMax(150);
    pulse_.setCurrent(100);
    pulse_.setRising(true);
    pulse_.setSpeed(150);
}

void GameHUD::draw(IRenderer& renderer, float dt) {
    drawLowHealthFlash(renderer, dt);
    updateUpgradeColours();
    drawShades(renderer);
    Hud::draw(renderer, dt);
}

// In design units, from the top of the canvas down.
void GameHUD::drawShades(IRenderer& renderer) const {
    if (items().empty())
        return;
    renderer.begin2D();
    renderer.setColour(0, 0, 0, shadeAlpha);
    const ImageHudItem* lowest = swarm_.icon;
    for (const Readout* row : {&quad_, &invincibility_, &race_})
        if (row->icon->visible)
            lowest = row->icon;
    shade(renderer, 8, 100, lowest->design().y - lowest->design().height);
    shade(renderer, 500, 630, message1_->visible ? message1_->design().y : weaponName_->design().y);
    if (stripName_->visible)
        shade(renderer, 150, 490, stripName_->design().y);
    renderer.end2D();
}

void GameHUD::shade(IRenderer& renderer, int left, int right, int bottom) const {
    const float x = static_cast<float>(windowWidth()) / canvasWidth;
    const float y = static_cast<float>(windowHeight()) / canvasHeight;
    constexpr float top = canvasHeight;
    const float width = static_cast<float>(right - left) * x;
    const float height = (top - static_cast<float>(bottom)) * y;
    renderer.drawImage(static_cast<float>(left) * x - width * shadeFringe,
                       top * y + height * shadeFringe, 0, width * (1 + 2 * shadeFringe),
                       height * (1 + 2 * shadeFringe), shadeImage, false, true);
}

void GameHUD::update(float) {
    if (items().empty())
        return;
    if (player_) {
        updateStatusColumn(*player_);
        updateWeaponPanel(*player_);
        updateWeaponStripAlpha();
    }
    const float time = now();
    message1_->visible = time < message1Until_;
    message2_->visible = time < message2Until_;
    setWeaponStripVisible(time < stripUntil_);
}

void GameHUD::updateStatusColumn(const HudPlayer& player) {
    health_.value->setText(std::to_string(player.hudHealth()));
    armour_.value->setText(std::to_string(player.hudArmour()));
    quad_.show(player.hudQuadActive());
    if (player.hudQuadActive())
        quad_.value->setText(wholeSeconds(player.hudQuadMsLeft()));
    invincibility_.show(player.hudInvincibilityActive());
    if (player.hudInvincibilityActive())
        invincibility_.value->setText(wholeSeconds(player.hudInvincibilityMsLeft()));
    race_.show(player.hudRaceActive());
    if (player.hudRaceActive())
        race_.value->setText(formatFloat(player.hudRaceMs() / 1000));
    const float swarmMs = player.hudSwarmMsLeft();
    if (swarmMs < 1000)
        swarm_.value->setText("Ready!");
    else
        swarm_.value->setText(wholeSeconds(swarmMs));
}

void GameHUD::updateWeaponPanel(const HudPlayer& player) {
    const int weapon = player.hudActiveWeapon();
    if (names_ && weapon != panelWeapon_) {
        panelWeapon_ = weapon;
        weaponIcon_->setImage("data/images/" + names_->hudShortName(weapon), ".png");
        weaponName_->setText(names_->hudDisplayName(weapon));
    }
    const int rounds = player.hudAmmo(weapon);
    if (rounds == -1)
        ammunition_->setText("INF");
    else
        ammunition_->setText(std::to_string(rounds));
}

void GameHUD::updateWeaponStripAlpha() {
    for (int i = 0; i < stripWeapons; ++i) {
        const int weapon = i + 1;
        const int rounds = player_->hudAmmo(weapon);
        const bool usable = player_->hudOwnsWeapon(weapon) && (rounds >= 1 || rounds == -1);
        stripIcons_[static_cast<std::size_t>(i)]->setColour(255, 255, 255,
                                                            usable ? 255.0F : 100.0F);
    }
}

void GameHUD::setWeaponStripVisible(bool shown) {
    for (ImageHudItem* icon : stripIcons_)
        icon->visible = shown;
    stripMarker_->visible = shown;
    stripName_->visible = shown;
}

void GameHUD::clearTimers() {
    stripUntil_ = 0;
    message1Until_ = 0;
    message2Until_ = 0;
}

void GameHUD::showMessage(std::string_view text) {
    if (items().empty())
        return;
    message1_->setText(text.substr(0, longestMessage));
    message1_->visible = true;
    message1Until_ = now() + messageTime;
}

void GameHUD::weaponSelected(int weaponId) {
    if (items().empty() || weaponId < 1 || weaponId > lastWeapon)
        return;
    stripUntil_ = now() + stripTime;
    setWeaponStripVisible(true);
    placeStripMarker(weaponId);
    stripName_->setText(names_ ? names_->hudDisplayName(weaponId) : std::string());
    centreStripName();
    placeItem(*stripName_, stripName_->design().x, stripName_->design().y);
}

void GameHUD::centreStripName() {
    const auto half = static_cast<int>(designWidth(*stripName_, stripName_->text()) / 2);
    stripName_->setPosition(canvasWidth / 2 - half, stripName_->design().y);
}

void GameHUD::showMessageAt(int x, int y, std::string_view text) {
    if (items().empty())
        return;
    message2_->setText(text.substr(0, longestMessage));
    message2_->setPosition(x, y);
    placeItem(*message2_, x, y);
    message2_->visible = true;
    message2Until_ = now() + placedMessageTime;
}

void GameHUD::showMessageAnchored(std::string_view text, int anchor) {
    if (items().empty())
        return;
    text = text.substr(0, longestMessage);
    const float width = designWidth(*message2_, text);
    const float height = designHeight(*message2_);
    constexpr int margin = 10;
    const int middleX = canvasWidth / 2 - static_cast<int>(width / 2);
    const int rightX = canvasWidth - static_cast<int>(width) - margin;
    const int middleY = canvasHeight / 2 - static_cast<int>(height / 2);
    const int topY = canvasHeight - static_cast<int>(height) - margin;
    struct Place {
        int x;
        int y;
    };
    const std::array<Place, 9> places{{{margin, margin},
                                       {middleX, margin},
                                       {rightX, margin},
                                       {rightX, middleY},
                                       {rightX, topY},
                                       {middleX, topY},
                                       {margin, topY},
                                       {margin, middleY},
                                       {middleX, middleY}}};
    const std::size_t index = anchor >= 0 && anchor < 8 ? static_cast<std::size_t>(anchor) : 8;
    showMessageAt(places[index].x, places[index].y, text);
}

// Both measures turn pixels into design units by the window's width alone.
float GameHUD::designWidth(const TextHudItem& item, std::string_view text) const {
    FontRenderer* fonts = renderer_ ? renderer_->getFontRenderer() : nullptr;
    if (!fonts)
        return 0;
    return item.widthOf(*fonts, text) * canvasWidth / static_cast<float>(windowWidth());
}

float GameHUD::designHeight(const TextHudItem& item) const {
    return static_cast<float>(item.lineHeight() * canvasWidth) / static_cast<float>(windowWidth());
}

void GameHUD::setUpgradeScreenShown(bool shown) {
    upgradeScreenShown_ = shown;
    if (!items().empty())
        showUpgradeScreen(shown);
}

void GameHUD::showUpgradeScreen(bool shown) {
    upgradeBackground_->visible = shown;
    for (TextHudItem* item : {upgradeTitle_, upgradeLevel_, upgradeCash_, upgradeNext_})
        item->visible = shown;
    if (shown && player_) {
        upgradeLevel_->setText("Current Level : " + std::to_string(player_->hudUpgradeLevel()));
        upgradeCash_->setText("Current Cash : " + std::to_string(player_->hudCash()));
        upgradeNext_->setText("Cash Until Next Level : " +
                              std::to_string(player_->hudCashToNextLevel()));
    }
    for (UpgradeLevelText* line : upgradeLines_) {
        if (shown && !line->visible && player_)
            line->setText(player_->hudUpgradeTitle(line->level()));
        line->visible = shown;
    }
}

void GameHUD::updateUpgradeColours() {
    if (!upgradeScreenShown_ || !player_)
        return;
    const int reached = player_->hudUpgradeLevel();
    for (UpgradeLevelText* line : upgradeLines_) {
        if (reached >= line->level())
            line->setColour(255, 255, 255, 255);
        else
            line->setColour(100, 100, 100, 255);
    }
}

void GameHUD::drawLowHealthFlash(IRenderer& renderer, float dt) {
    if (!player_ || !lowHealthFlash_ || lowHealthFlash_->floatValue() <= 0 ||
        player_->hudHealth() > lowHealth || player_->hudDead())
        return;
    const bool fast = player_->hudHealth() <= veryLowHealth;
    pulse_.setMin(fast ? 50.0F : 30.0F);
    pulse_.setMax(fast ? 150.0F : 90.0F);
    pulse_.setSpeed(fast ? 512.0F : 150.0F);
    pulse_.update(dt);
    renderer.begin2D();
    renderer.setColour(255, 0, 0, static_cast<int>(pulse_.getCurrent()));
    const auto width = static_cast<float>(renderer.getWidth());
    const auto height = static_cast<float>(renderer.getHeight());
    renderer.drawImage(0, height, 0, width, height, pulseImage, true, true);
    renderer.end2D();
}

void GameHUD::dump(TiXmlElement& element) const {
    xml::writeFloat(element, "leveltime", now());
    xml::writeFloat(element, "stripuntil", stripUntil_);
    xml::writeFloat(element, "message1until", message1Until_);
    xml::writeFloat(element, "message2until", message2Until_);
    xml::writeFloat(element, "pulse", pulse_.getCurrent());
    xml::writeBool(element, "upgradescreen", upgradeScreenShown_);
    for (const auto& item : items()) {
        TiXmlElement child("item");
        item->dump(child);
        element.InsertEndChild(child);
    }
}

}  // namespace bc
