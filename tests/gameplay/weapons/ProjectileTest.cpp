// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/RadiusDamage.h"
#include "gameplay/objects/movers/Door.h"
#include "gameplay/rules/GameBodyFactory.h"
#include "gameplay/weapons/GrenadeProjectile.h"
#include "gameplay/weapons/LauncherWeapons.h"
#include "gameplay/weapons/Projectile.h"
#include "gameplay/weapons/RocketProjectile.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "support/PlayFixture.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class ProjectileTest : public test::PlayFixture {
  protected:
    template <class Kind>
    Kind* find(const std::string& type) {
        for (Body* body : game.world.allBodies())
            if (body->type == type)
                return dynamic_cast<Kind*>(body);
        return nullptr;
    }
    RocketProjectile* launchRocket(const Vector& aim = {1, 0}) {
        RocketWeapon weapon;
        weapon.fire(player, player->pos, aim, levelTime());
        return find<RocketProjectile>("rocketprojectile");
    }
    GrenadeProjectile* launchGrenade(const Vector& aim = {1, 0}) {
        GrenadeWeapon weapon;
        weapon.applyDefinitions();
        weapon.fire(player, player->pos, aim, levelTime());
        return find<GrenadeProjectile>("grenadeprojectile");
    }
    int blasts() const { return game.sound.countOf(0); }
};

TEST_F(ProjectileTest, RocketsFlyStraightAndHurtAllAroundAlike) {
    gravity = -500;
    GameBody* hit = addTarget({300, 0});
    GameBody* beside = addTarget({300, 24});
    GameBody* away = addTarget({300, -120});
    for (GameBody* body : {hit, beside, away})
        body->gravitymultiplier = 0;
    RocketProjectile* rocket = launchRocket();
    ASSERT_NE(rocket, nullptr);
    EXPECT_EQ(rocket->owner, player);
    EXPECT_EQ(rocket->particleSystems().size(), 4U);  // trail and three flames
    EXPECT_NEAR(rocket->pos.x, player->radius - 4, 1e-3F);
    step(10);
    EXPECT_NEAR(rocket->pos.x, player->radius - 4 + 100, 1);
    EXPECT_FLOAT_EQ(rocket->pos.y, 0);
    EXPECT_EQ(blasts(), 0);
    step(30);
    EXPECT_EQ(blasts(), 1);
    EXPECT_EQ(hit->health, 890);
    EXPECT_EQ(beside->health, 890);
    EXPECT_EQ(away->health, 1000);
    EXPECT_GT(hit->vel.x, 0);
    EXPECT_EQ(bodiesOfType("rocketprojectile"), 0);
    EXPECT_EQ(game.overlays, 1);
    EXPECT_EQ(systemsOf("rocketflame") + systemsOf("debugtrail"), 0);
}

TEST_F(ProjectileTest, QuadDamageCountsOnceAtTheBlast) {
    GameBody* enemy = addTarget({100, 0});
    player->giveQuad(4);
    launchRocket();
    step(20);
    EXPECT_EQ(enemy->health, 1000 - 4 * 110);
    // Quad that ends in flight is gone; the blast is what counts.
    enemy->health = 1000;
    enemy->setPosition({100, 0});
    enemy->vel = Vector();
    launchRocket();
    player->damageFactor = 1;
    step(20);
    EXPECT_EQ(enemy->health, 890);
}

TEST_F(ProjectileTest, RocketsPassWhatCannotStopThem) {
    GameBody* hidden = addTarget({60, 0});
    hidden->visible = false;
    GameBody* air = addTarget({100, 0});
    air->solid = false;
    const GameBody* ally = addTarget({140, 60}, team::player);
    addWall({200, 0}, 20, 200);
    launchRocket();
    step(13);
    EXPECT_EQ(blasts(), 0);
    step(20);
    EXPECT_EQ(blasts(), 1);
    EXPECT_EQ(hidden->health, 1000);
    EXPECT_EQ(ally->health, 1000);
}

TEST_F(ProjectileTest, EnemyRocketsDoNotFlashTheScreen) {
    GameBody* enemy = addTarget({300, 0});
    RocketWeapon weapon;
    weapon.enemyWeapon = true;
    weapon.projectileDamage = 25;
    weapon.fire(enemy, enemy->pos, Vector(-1, 0), levelTime());
    EXPECT_EQ(find<RocketProjectile>("rocketprojectile")->particleSystems().size(), 3U);
    step(40);
    EXPECT_EQ(blasts(), 1);
    EXPECT_EQ(player->health, 75);
    EXPECT_EQ(game.overlays, 0);
}

struct KickCase {
    float x, y, knockback, vx, vy;
};

TEST_F(ProjectileTest, BlastsPushTowardsTheRimLessAndSidewaysMore) {
    for (const KickCase& c : {
             KickCase{16, 0, 1, 90, 0},  // half way: |32 - 16| * 120 / 32 * 1.5
             {0, 16, 1, 0, 60},
             {-16, 0, 3, -270, 0},
             {0, 40, 1, 0, 30},  // beyond the rim, but its outline is inside
             {0, 0, 1, 0, 0},
             {12, 16, 1, 45 * 0.6F * 1.5F * 0.0F + 12.0F / 20 * 45 * 1.5F, 16.0F / 20 * 45},
         }) {
        GameBody* body = addTarget({c.x, 300 + c.y});
        radiusDamage({0, 300}, 32, c.knockback, 10, damage::blast, nullptr);
        EXPECT_NEAR(body->vel.x, c.vx, 0.5F) << c.x << ',' << c.y;
        EXPECT_NEAR(body->vel.y, c.vy, 0.5F) << c.x << ',' << c.y;
        EXPECT_FLOAT_EQ(body->vel.z, 0);
        EXPECT_EQ(body->health, 990);
        game.world.destroyBody(body);
    }
}

TEST_F(ProjectileTest, BlastsSpareTheOwnerAndThePlayersFriends) {
    GameBody* friendly = addTarget({10, 0}, team::player);
    GameBody* enemy = addTarget({-10, 0});
    GameBody* ghost = addTarget({0, 10});
    ghost->flags.set(bodyflag::untouchable);
    radiusDamage({0, 0}, 32, 1, 50, damage::rocket, player);
    EXPECT_EQ(player->health, 100);
    EXPECT_EQ(friendly->health, 1000);
    EXPECT_EQ(enemy->health, 950);
    EXPECT_EQ(ghost->health, 1000);
    EXPECT_TRUE(ghost->vel.isZero());
    // Enemies hurt each other, and everybody is hurt by nobody's blast.
    GameBody* other = addTarget({0, -10});
    radiusDamage({0, 0}, 32, 0, 50, damage::rocket, other);
    EXPECT_EQ(enemy->health, 900);
    EXPECT_EQ(other->health, 1000);
    EXPECT_EQ(player->health, 50);
    radiusDamage({0, 0}, 32, 0, 10, damage::rocket, nullptr);
    EXPECT_EQ(player->health, 40);
}

/// Blows up when it is killed.
class Charge final : public GameBody {
  public:
    Charge() {
        takesDamage = true;
        showDamage = false;
        health = 1;
        mass = invMass = 0;
    }
    void die() override {
        if (!dying)
            GameBody::die();
        if (!exploded_) {
            exploded_ = true;
            radiusDamage(pos, 32, 0, 7, damage::blast, this);
        }
    }

  private:
    bool exploded_ = false;
};

TEST_F(ProjectileTest, BlastsSetOffBlasts) {
    for (int i = 0; i < 40; ++i)
        add<Charge>({static_cast<float>(i) * 20 - 400, 200});
    GameBody* last = addTarget({400, 200});
    radiusDamage({-410, 200}, 20, 0, 7, damage::blast, nullptr);
    EXPECT_LT(last->health, 1000);
}

TEST_F(ProjectileTest, GrenadesBounceOffWallsAndDoorsAndBlowUpInTime) {
    gravity = -300;
    addWall({0, -60}, 600, 20);
    auto door = std::make_unique<Door>();
    door->mass = door->invMass = 0;
    door->makeBox(20, 200);
    add(std::move(door), {150, 0});
    GrenadeProjectile* grenade = launchGrenade();
    ASSERT_NE(grenade, nullptr);
    EXPECT_FLOAT_EQ(grenade->mass, 5);
    EXPECT_FLOAT_EQ(grenade->fuseTime, levelTime() + 3000);
    stepMsecs(2900);
    EXPECT_EQ(blasts(), 0);
    EXPECT_LT(grenade->pos.x, 150);
    EXPECT_GT(game.sound.countOf(12) + game.sound.countOf(13), 0);
    stepMsecs(200);
    EXPECT_EQ(blasts(), 1);
    EXPECT_EQ(bodiesOfType("grenadeprojectile"), 0);
}

TEST_F(ProjectileTest, GrenadesBlowUpOnBodiesAndMovingGeometry) {
    struct Case {
        bool massive, mover, hurtable;
        int health;
    };
    // What stands fast and can be hurt is an enemy, not a wall.
    for (const Case& c : {Case{true, false, true, 880}, Case{false, true, false, 1000},
                          Case{false, false, true, 880}}) {
        game.sound.plays.clear();
        GameBody* enemy = addTarget({100, 0});
        if (!c.massive)
            enemy->mass = enemy->invMass = 0;
        enemy->nonmassmover = c.mover;
        enemy->takesDamage = c.hurtable;
        launchGrenade();
        stepMsecs(800);
        EXPECT_EQ(blasts(), 1) << c.massive << c.mover;
        EXPECT_EQ(enemy->health, c.health) << c.massive << c.mover;
        game.world.destroyBody(enemy);
    }
}

TEST_F(ProjectileTest, TheFuseIsTheConfiguredLifetime) {
    WeaponDefinitions::Grenade& d = weaponDefinitions().grenade;
    d.lifetime = 500;
    d.mass = 0;
    d.bounceEnergy = 0.9F;
    const GrenadeProjectile* grenade = launchGrenade();
    EXPECT_FLOAT_EQ(grenade->invMass, 0);
    EXPECT_FLOAT_EQ(grenade->bounce, 0.9F);
    stepMsecs(475);
    EXPECT_EQ(blasts(), 0);
    stepMsecs(75);
    EXPECT_EQ(blasts(), 1);
}

TEST_F(ProjectileTest, PlasmaBoltsHurtWhatTheyHit) {
    GameBody* enemy = addTarget({300, 0});
    PlasmaPistolWeapon pistol;
    pistol.damage = 15;
    pistol.enemyWeapon = true;
    pistol.fire(enemy, enemy->pos, Vector(-1, 0), levelTime());
    step(40);
    EXPECT_EQ(player->health, 85);
    EXPECT_EQ(enemy->health, 1000);
    EXPECT_EQ(bodiesOfType("plasmapistolprojectile"), 0);
}

TEST_F(ProjectileTest, SavesKeepProjectilesInFlightButNotTheHook) {
    GrenadeProjectile* grenade = launchGrenade({-1, 0});
    grenade->blastRadius = 48;
    step(5);
    launchRocket({0, 1});
    const float fuse = grenade->fuseTime;
    player->aim = Vector(0, -1);
    run("+grapple");
    step(4);
    const Vector place = find<RocketProjectile>("rocketprojectile")->pos;
    TiXmlElement root("save");
    saveEntities(game.world, root);
    endLevel();
    LevelBodies bodies;
    ASSERT_TRUE(readSavedBodies(*gameplay->getFactory(), root, "save", bodies));
    EXPECT_EQ(bodies.size(), 2U);
    insertBodies(game.world, std::move(bodies), true);
    auto* rocket = find<RocketProjectile>("rocketprojectile");
    ASSERT_NE(rocket, nullptr);
    EXPECT_LT(distance(rocket->pos, place), 0.01F);
    EXPECT_FALSE(rocket->solid);
    EXPECT_EQ(rocket->owner, player);
    EXPECT_EQ(rocket->particleSystems().size(), 4U);
    EXPECT_FLOAT_EQ(rocket->vel.y, 400);
    auto* again = find<GrenadeProjectile>("grenadeprojectile");
    EXPECT_FLOAT_EQ(again->fuseTime, fuse);
    EXPECT_FLOAT_EQ(again->blastRadius, 48);
    // It blows up, and its owner's count of children stays right.
    again->explode();
    EXPECT_EQ(player->numAlive, 0);
}

}  // namespace
}  // namespace bc
