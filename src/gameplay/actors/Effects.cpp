// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/Effects.h"

#include "core/Random.h"
#include "gameplay/actors/GameplaySingleton.h"
#include "gameplay/actors/SoundIds.h"
#include "hud/GameHUD.h"
#include "hud/OverlayEffect.h"
#include "particles/ParticleManager.h"
#include "ports/IGame.h"
#include "ports/ISound.h"

#include <memory>

namespace bc {

namespace {

constexpr float flashSeconds = 0.5F;
/// Alpha a second: the strongest flash (150) is gone when the overlay ends.
constexpr float flashFade = -300;

constexpr int streaks = 8;
constexpr float streakStart = 32;
constexpr float longStreak = 58;
constexpr float shortestNear = 32;
constexpr float shortestFar = 16;

}  // namespace

void playSoundAt(int soundId, const Vector& position) {
    if (ISound* sounds = GameplaySingleton::instance().sound())
        sounds->playIdAt(soundId, position, 0);
}

void appearEffect(const Vector& position) {
    startParticles("itemrespawn2", position);
    playSoundAt(sound::respawn, position);
}

void flashScreen(const RGBAColour& colour) {
    IGame* game = GameplaySingleton::instance().game();
    if (game == nullptr)
        return;
    auto flash = std::make_unique<SimpleFadeOverlay>(colour, flashFade, flashSeconds);
    flash->additive = true;
    flash->textured = true;
    flash->textureName = "data/particles/cloud.png";
    game->setOverlay(std::move(flash));
}

void explosionEffects(const Vector& position) {
    startParticles("explosionshock", position, shockRaise);
    startParticles("explosionfire", position);
    startParticles("explosionspark", position);
    for (int i = 0; i < streaks; ++i) {
        const Vector direction = randomDirection();
        const float start = randomRange(0, streakStart);
        const float shortest = start < streakStart / 2 ? shortestNear : shortestFar;
        const float length = randomRange(shortest, longStreak);
        startBeam("tracer", position + direction * start, position + direction * (start + length));
    }
    playSoundAt(sound::explosion, position);
}

void showMessage(std::string_view text) {
    if (GameHUD* hud = GameplaySingleton::instance().hud)
        hud->showMessage(text);
}

void showAnchoredMessage(std::string_view text, int anchor) {
    if (GameHUD* hud = GameplaySingleton::instance().hud)
        hud->showMessageAnchored(text, anchor);
}

}  // namespace bc
