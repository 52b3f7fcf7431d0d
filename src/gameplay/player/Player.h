// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/actors/GameBody.h"
#include "gameplay/player/Inventory.h"
#include "gameplay/player/PlayerProperties.h"
#include "gameplay/weapons/GrappleHolder.h"
#include "hud/HudPlayer.h"
#include "world/Creatable.h"

namespace bc {

/// The craft the user flies (type "player"). Made once by the application, which owns it and takes
/// it from level to level; it dies by being hidden until the last save has been loaded.
class Player final : public Creatable<Player, GameBody>, public GrappleHolder, public HudPlayer {
  public:
    /// How long quad damage and invincibility last, milliseconds.
    static constexpr float powerUpTime = 30000;
    /// From death to the loading of the last save.
    static constexpr float respawnDelay = 2000;

    Player();
    ~Player() override;
    void fields(BodyFields& f) override;

    void die() override;
    void onThink(float dt) override;
    void onLoaded() override;
    /// Notes what it stands on that is the first of the pair.
    void onTouch(const TouchInfo& touch) override;
    void drawExtras(IRenderer& renderer) override;
    void onBodyRemoved(const Body& gone) override;
    [[nodiscard]] bool keptInSaves() const override { return false; }
    [[nodiscard]] int swarmLevel() const override { return progress.swarmLevel; }
    void addHealth(int n) override;
    void addArmour(int n) override;

    void addQuadEffect();
    void addInvincibleEffect();
    void fireActiveWeapon();
    void stopActiveWeapon();
    /// factor: of the damage taken, 0 for none.
    void giveInvincibility(float factor);
    /// factor: of the damage dealt; a stronger one in force stays.
    void giveQuad(float factor);
    void addCash(int n);
    /// Brings the player back if it died; called when a level starts.
    void revive();
    /// The flame of the boosters, while a burst lasts.
    void startExhaust();
    void stopExhaust();
    /// Turns aim towards a place in the world, from where the craft is drawn. A place on the very
    /// middle of the craft leaves it.
    void aimAt(const Vector& place);
    /// Lets go of the grappling hook, if one is out.
    void releaseGrapple();

    // What the HUD shows.
    [[nodiscard]] int hudHealth() const override;
    [[nodiscard]] int hudArmour() const override;
    [[nodiscard]] bool hudDead() const override;
    [[nodiscard]] bool hudQuadActive() const override;
    [[nodiscard]] float hudQuadMsLeft() const override;
    [[nodiscard]] bool hudInvincibilityActive() const override;
    [[nodiscard]] float hudInvincibilityMsLeft() const override;
    [[nodiscard]] float hudSwarmMsLeft() const override;
    [[nodiscard]] int hudActiveWeapon() const override;
    [[nodiscard]] bool hudOwnsWeapon(int weaponId) const override;
    [[nodiscard]] int hudAmmo(int weaponId) const override;
    [[nodiscard]] int hudUpgradeLevel() const override;
    [[nodiscard]] int hudCash() const override;
    [[nodiscard]] int hudCashToNextLevel() const override;
    [[nodiscard]] std::string hudUpgradeTitle(int level) const override;
    [[nodiscard]] bool hudRaceActive() const override;
    [[nodiscard]] float hudRaceMs() const override;

    Inventory inventory{*this};
    PlayerProperties progress;

    // Movement; seconds.
    /// Since the craft last touched ground, in platform mode.
    float airTime = 0;
    bool canJump = true;
    /// Stands on what had its turn before it, which contact does not tell; until the next movement.
    bool standsOnEarlier = false;
    /// What is left of a burst of the boosters, and until they have recharged.
    float boostLeft = 0;
    float boostRecharge = 0;

    // Death; level time in milliseconds.
    bool dead = false;
    float respawnTime = 0;
    bool revivePending = false;

    // Set every frame by the application.
    /// The cursor in window pixels from the top left, and the world point under it.
    Vector cursorPos;
    Vector mouseWorldPos;
    /// Unit vector; weapons fire along it. See aimAt.
    Vector aim{1, 0};
    /// Follows the craft on a leash, for the chase camera.
    Vector chasePoint;
    bool atChasePoint = false;

  protected:
    void onStateRead() override;

  private:
    void attachEffect(std::string_view name);
    void fadeEffect(std::string_view name, float seconds);
    [[nodiscard]] bool hasEffect(std::string_view name) const;
    void requestRespawn(float now);
    void drawRope(IRenderer& renderer);
    void endPowerUps(float now);
};

/// The craft in play; null while there is none.
[[nodiscard]] Player* currentPlayer();

}  // namespace bc
