// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/BitFlags.h"
#include "world/Body.h"

#include <string>
#include <string_view>
#include <vector>

namespace bc {

class GameBody;

/// What a GameBody keeps of play. Times are level times in milliseconds.
struct GameBodyState {
    int health = 100;
    int maxHealth = 200;
    int armour = 0;
    int maxArmour = 200;
    /// Can be hurt at all.
    bool takesDamage = false;
    bool dying = false;
    /// Bleeds when hurt and when killed.
    bool showDamage = true;
    float deathTime = 0;
    float deathDelay = 5000;
    /// Contact damage hurts it again from this time on; kept by what deals it.
    float nextPainTime = 0;
    /// Enemies ignore it.
    bool noTarget = false;
    /// See namespace bodyflag.
    BitFlags flags;
    /// See namespace team.
    BitFlags team;
    bool hasQuad = false;
    /// Factor of the damage it deals.
    float damageFactor = 1;
    float quadTime = 0;
    int numAlive = 0;
    int maxAlive = 0;
    // Neither is owned. An owner has its children's links removed when it dies, a child its own.
    std::vector<GameBody*> children;
    GameBody* owner = nullptr;
    /// As a save named it; the owner's current id is what is written.
    int ownerId = 0;
    /// No damage at all; not saved.
    bool godMode = false;
    bool hasInvinc = false;
    /// Factor of the damage it takes while hasInvinc.
    float damageTakenFactor = 1;
    float invincTime = 0;
    int numLives = 1;
    /// Dead, waiting to come back.
    bool inLimbo = false;
    float reviveTime = 0;
    /// Where it died and comes back.
    Vector limboPlace;
    /// Health it comes back with.
    int initialHealth = 100;
    bool canGib = true;
};

/// A body that takes part in play: it has health and armour, can be hurt and die (for good, or to
/// come back while it has lives left), may belong to an owner, and sets off its targets.
class GameBody : public Body, public GameBodyState {
  public:
    /// How long a body with lives left stays away.
    static constexpr float limboTime = 3000;
    /// A body hurt below this health bursts into gibs.
    static constexpr int gibHealth = -10;

    GameBody() = default;
    ~GameBody() override = default;

    [[nodiscard]] std::unique_ptr<Body> create() const override;
    void fields(BodyFields& f) override;
    void die() override;
    /// Keeps a body in limbo in its place and brings it back in time.
    void update(float dt) override;
    /// Calls onThink, but for a body in limbo.
    void think(float dt) final;
    /// Finds the owner that a save names.
    void onBeforeTargets() override;
    void onBodyRemoved(const Body& gone) override;

    virtual void addHealth(int n);
    /// amount: before difficulty, invincibility and armour. damageType: see namespace damage.
    virtual void takeDamage(int amount, int damageType);
    [[nodiscard]] virtual bool canBeHurtBy(int damageType) const;
    [[nodiscard]] virtual int adjustIncomingDamage(int amount, int damageType);
    virtual void setHealth(int n) { health = n; }
    [[nodiscard]] virtual int getHealth() const { return health; }
    virtual void addArmour(int n);
    /// Armour soaks up damage point for point; absorbed is how much it took.
    virtual void absorbDamage(int damage, int& absorbed);
    virtual void setArmour(int n) { armour = n; }
    [[nodiscard]] virtual int getArmour() const { return armour; }
    /// Nothing happens for a body that is no child.
    virtual void removeChild(GameBody* child);
    virtual void releaseChildren();
    virtual void deathEffect();
    virtual void painEffect();
    /// Something set this body off: activator is what did, or what the chain began with.
    /// Called through trigger().
    virtual void onTriggered(GameBody* /*activator*/) {}
    /// The damage this body deals when its weapon deals amount.
    [[nodiscard]] virtual int scaleOutgoingDamage(int amount) const;
    /// A text that rises from the position, fades and is gone after two seconds.
    virtual void spawnText(const Vector& position, std::string_view text, int size, bool shadow,
                           float scale, const std::string& font);
    /// Sets off every target, in order, with this body as what did it.
    virtual void fireTargets();

    /// The level of an enemy a spawner makes; other bodies have none.
    virtual void applyLevel(int /*level*/) {}
    /// How far the player's swarm has been upgraded, 1 to 5; 0 for whoever has none.
    [[nodiscard]] virtual int swarmLevel() const { return 0; }
    /// Nobody sees through it, also while it is no GameBody's side.
    [[nodiscard]] virtual bool blocksSight() const { return false; }
    /// Other bodies of the player's side do not hide what it looks at from it.
    [[nodiscard]] virtual bool seesPastPlayer() const { return false; }
    /// Grenades bounce off it even while it moves.
    [[nodiscard]] virtual bool bouncesGrenades() const { return false; }
    /// A machine that stands fast: the swarm strikes it from farther away.
    [[nodiscard]] virtual bool isMachine() const { return false; }
    /// warpnearest takes the player there.
    [[nodiscard]] virtual bool isWarpPlace() const { return false; }

    /// Calls onTriggered, and writes it to the log while logtriggers is on.
    void trigger(GameBody* activator);
    /// Sets off every target with another activator: for relays.
    void fireTargetsAs(GameBody* activator);
    /// Makes owner this body's owner and this one its child (numAlive is the owner's business).
    void adoptBy(GameBody& newOwner);
    /// Throws gibs from the place, as many as the gib budget grants, and flashes the screen red.
    void throwGibs(const Vector& position);

    [[nodiscard]] bool isUntouchable() const;
    /// Both on the player's side.
    [[nodiscard]] bool isAllyOf(const GameBody& other) const;

  protected:
    /// What think does while the body is not in limbo; dt as for think.
    virtual void onThink(float /*dt*/) {}
    void enterLimbo();
    void leaveLimbo();
};

}  // namespace bc
