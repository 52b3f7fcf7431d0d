// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// What the player shows: on the HUD, and around the craft.
#include "gameplay/actors/Effects.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/Race.h"
#include "gameplay/actors/Rules.h"
#include "gameplay/player/Player.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/GrappleProjectile.h"
#include "ports/IRenderer.h"

namespace bc {

namespace {

const std::string ropeTexture = "data/particles/beam.tga";
const std::string pulseTexture = "data/particles/magneticpulse.png";

constexpr float ropeWidth = 4;
constexpr float ropePiece = 64;
/// The rope begins inside the craft and ends short of the hook's middle.
constexpr float ropeInset = 2;
constexpr float ropeGap = 3;
constexpr int alpha = 200;

constexpr float pulseLong = 24;
constexpr float pulseShort = 18;

void drawPulse(IRenderer& renderer, const Vector& centre, float width, float height) {
    renderer.drawQuad(centre.x - width / 2, centre.y + height / 2, centre.z + effectRaise, width,
                      height);
}

}  // namespace

void Player::drawExtras(IRenderer& renderer) {
    if (grappling && grappleHook != nullptr)
        drawRope(renderer);
    if (!hasInvinc && !hasQuad)
        return;
    // As the sparks around them lie at the same depth, they would be cut off at the pulse's edges.
    renderer.setDepthWrite(false);
    renderer.setBlending(true);
    renderer.setAdditiveBlend();
    renderer.bindTexture(pulseTexture, true);
    if (hasInvinc) {
        renderer.setColour(255, 0, 0, alpha);
        drawPulse(renderer, renderpos, pulseShort, pulseLong);
    }
    if (hasQuad) {
        renderer.setColour(0, 255, 255, alpha);
        drawPulse(renderer, renderpos, pulseLong, pulseShort);
    }
    renderer.setAlphaBlend();
    renderer.setDepthWrite(true);
}

void Player::drawRope(IRenderer& renderer) {
    ropeEnd = grappleHook->renderpos;
    const Vector along = normalised(Vector(ropeEnd.x - renderpos.x, ropeEnd.y - renderpos.y));
    const Vector from = renderpos + along * (radius - ropeInset);
    const Vector to = ropeEnd - along * ropeGap;
    renderer.setDepthWrite(false);
    renderer.setBlending(true);
    renderer.setAlphaBlend();
    renderer.bindTexture(ropeTexture, false);
    if (grappleHook->holding)
        renderer.setColour(255, 0, 0, alpha);
    else
        renderer.setColour(0, 255, 255, alpha);
    renderer.drawSegmentedBeam(from, to, from.z + effectRaise, ropeWidth, ropePiece, true);
    renderer.setDepthWrite(true);
}

int Player::hudHealth() const {
    return health;
}
int Player::hudArmour() const {
    return armour;
}
bool Player::hudDead() const {
    return dead;
}
bool Player::hudQuadActive() const {
    return hasQuad;
}
float Player::hudQuadMsLeft() const {
    return quadTime - levelTime();
}
bool Player::hudInvincibilityActive() const {
    return hasInvinc;
}
float Player::hudInvincibilityMsLeft() const {
    return invincTime - levelTime();
}
float Player::hudSwarmMsLeft() const {
    const FireableWeapon* swarm = inventory.weaponObject(weapon::swarm);
    return swarm != nullptr ? swarm->nextFireTime - levelTime() : 0.0F;
}
int Player::hudActiveWeapon() const {
    return inventory.activeWeapon();
}
bool Player::hudOwnsWeapon(int weaponId) const {
    return inventory.owns(weaponId);
}
int Player::hudAmmo(int weaponId) const {
    return inventory.ammoForWeapon(weaponId);
}
int Player::hudUpgradeLevel() const {
    return progress.currentLevel;
}
int Player::hudCash() const {
    return progress.cash;
}
int Player::hudCashToNextLevel() const {
    return progress.cashToNextLevel();
}
std::string Player::hudUpgradeTitle(int level) const {
    return std::string(PlayerProperties::titleOfLevel(level));
}
bool Player::hudRaceActive() const {
    Rules* rules = GameplaySingleton::instance().rules;
    return rules != nullptr && rules->race().isActive();
}
float Player::hudRaceMs() const {
    Rules* rules = GameplaySingleton::instance().rules;
    return rules != nullptr ? rules->race().time() : 0.0F;
}

}  // namespace bc
