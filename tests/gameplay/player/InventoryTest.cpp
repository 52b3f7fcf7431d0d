// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/player/Inventory.h"
#include "gameplay/weapons/FireableWeapon.h"
#include "gameplay/weapons/InstantWeapons.h"
#include "gameplay/weapons/WeaponDefinitions.h"
#include "support/Places.h"
#include "support/PlayFixture.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

namespace bc {
namespace {

class InventoryTest : public test::PlayFixture {
  protected:
    Inventory& bag() { return player->inventory; }
    void fire(int id) { bag().fire(player, player->pos, Vector(1, 0), levelTime(), id); }
};

TEST_F(InventoryTest, AnEmptyWeaponClicksAndIsPutAwayForTheBest) {
    bag().giveWeapon(weapon::plasmaGun);
    bag().giveWeapon(weapon::shotgun);
    bag().giveWeapon(weapon::railgun);
    bag().giveWeapon(weapon::lightningGun);  // best of all, but empty
    bag().giveWeapon(weapon::magneticGun);
    bag().setAmmo(3, 5);
    bag().setAmmo(7, 5);
    bag().switchTo(weapon::plasmaGun);
    game.sound.plays.clear();
    player->aim = Vector(1, 0);
    run("+attack");
    stepMsecs(700);
    EXPECT_EQ(game.sound.countOf(10), 2);
    EXPECT_EQ(bag().activeWeapon(), weapon::plasmaGun);
    stepMsecs(400);
    EXPECT_EQ(bag().activeWeapon(), weapon::railgun);
    EXPECT_EQ(game.sound.countOf(9), 1);
    run("-attack");
    step();
    // A change by hand calls the pending one off.
    bag().switchTo(weapon::plasmaGun);
    run("+attack");
    step();
    run("-attack");
    bag().switchTo(weapon::pistol);
    stepMsecs(2000);
    EXPECT_EQ(bag().activeWeapon(), weapon::pistol);
}

TEST_F(InventoryTest, AmmunitionIsChargedPerShotAndInfiniteNever) {
    bag().giveAllWeapons();
    bag().setAmmo(3, 2);
    fire(weapon::shotgun);
    fire(weapon::shotgun);  // too soon
    EXPECT_EQ(bag().ammo(3), 1);
    stepMsecs(800);
    fire(weapon::shotgun);
    stepMsecs(800);
    fire(weapon::shotgun);
    EXPECT_EQ(bag().ammo(3), 0);
    for (const int id : {weapon::grapple, weapon::pistol, weapon::swarm}) {
        fire(id);
        EXPECT_EQ(bag().ammoForWeapon(id), infiniteAmmo) << id;
    }
}

TEST_F(InventoryTest, TheMagneticGunFiresNothing) {
    bag().giveWeapon(weapon::magneticGun);
    bag().giveAllAmmo();
    bag().switchTo(weapon::magneticGun);
    game.sound.plays.clear();
    const std::size_t bodies = game.world.allBodies().size();
    run("+attack");
    stepMsecs(2000);
    EXPECT_TRUE(game.sound.plays.empty());
    EXPECT_EQ(game.world.allBodies().size(), bodies);
    EXPECT_EQ(bag().activeWeapon(), weapon::magneticGun);
    for (int ammo = 2; ammo <= 8; ++ammo)
        EXPECT_EQ(bag().ammo(ammo), 999);
}

TEST_F(InventoryTest, SelectionGoesRoundTheOwnedWeapons) {
    bag().giveWeapon(weapon::magneticGun);
    const std::vector<int> ring = {weapon::pistol, weapon::swarm, weapon::magneticGun,
                                   weapon::grapple};
    for (std::size_t i = 0; i < 2 * ring.size(); ++i) {
        EXPECT_EQ(bag().activeWeapon(), ring[i % ring.size()]);
        bag().selectNext();
    }
    for (std::size_t i = 2 * ring.size(); i > 0; --i) {
        EXPECT_EQ(bag().activeWeapon(), ring[i % ring.size()]);
        bag().selectPrevious();
    }
    game.sound.plays.clear();
    run("useitem railgun");  // not owned
    run("useitem pistol");   // in hand
    run("useitem rubbish");
    EXPECT_EQ(bag().activeWeapon(), weapon::pistol);
    EXPECT_TRUE(game.sound.plays.empty());
    bag().switchTo(0);
    bag().switchTo(12);
    EXPECT_EQ(bag().activeWeapon(), weapon::pistol);
}

TEST_F(InventoryTest, AmmunitionStopsAtItsMaximum) {
    struct Case {
        int id, has, add, after;
    };
    for (const Case& c : {Case{2, 0, 40, 40},
                          {2, 290, 40, 300},
                          {3, 49, 5, 50},
                          {2, 999, 40, 999},
                          {2, 1000, 40, 999},
                          {2, 400, 40, 440},
                          {2, 0, -1, 0},
                          {1, infiniteAmmo, 40, infiniteAmmo}}) {
        bag().setAmmo(c.id, c.has);
        bag().addAmmo(c.id, c.add);
        EXPECT_EQ(bag().ammo(c.id), c.after) << c.id << ' ' << c.has;
    }
    bag().setAmmo(99, 5);
    bag().setAmmo(-1, 5);
    EXPECT_EQ(bag().ammo(99), 0);
}

struct GiveCase {
    const char* line;
    int health, armour, cash, plasma, rails;
    bool railgun, quad, invincible;
};

TEST_F(InventoryTest, GiveGives) {
    for (const GiveCase& c : {
             GiveCase{"give", 50, 10, 0, 0, 0, false, false, false},
             {"give all", 50, 10, 0, 999, 999, true, false, false},
             {"giveall", 50, 10, 0, 999, 999, true, false, false},
             {"give modest", 50, 10, 0, 300, 50, true, false, false},
             {"give quad", 50, 10, 0, 0, 0, false, true, false},
             {"give invincibility", 50, 10, 0, 0, 0, false, false, true},
             {"give health", 100, 10, 0, 0, 0, false, false, false},
             {"give health 500", 500, 10, 0, 0, 0, false, false, false},
             {"give armour", 50, 100, 0, 0, 0, false, false, false},
             {"give armor 33", 50, 33, 0, 0, 0, false, false, false},
             {"give cash", 50, 10, 5, 0, 0, false, false, false},
             {"give cash 31", 50, 10, 31, 0, 0, false, false, false},
             {"give ammo", 50, 10, 0, 999, 999, false, false, false},
             {"give weapons", 50, 10, 0, 0, 0, true, false, false},
             {"give railgun", 50, 10, 0, 0, 0, true, false, false},
             {"give railgunammo", 50, 10, 0, 0, 5, false, false, false},
             {"give plasmagunammo 1000", 50, 10, 0, 1000, 0, false, false, false},
             {"give Railgun", 50, 10, 0, 0, 0, false, false, false},
         }) {
        gameplay->resetPlayerProgress();
        player->health = 50;
        player->armour = 10;
        player->hasQuad = player->hasInvinc = false;
        run(c.line);
        EXPECT_EQ(player->health, c.health) << c.line;
        EXPECT_EQ(player->armour, c.armour) << c.line;
        EXPECT_EQ(player->progress.cash, c.cash) << c.line;
        EXPECT_EQ(bag().ammo(2), c.plasma) << c.line;
        EXPECT_EQ(bag().ammo(7), c.rails) << c.line;
        EXPECT_EQ(bag().owns(weapon::railgun), c.railgun) << c.line;
        EXPECT_EQ(player->hasQuad, c.quad) << c.line;
        EXPECT_EQ(player->hasInvinc, c.invincible) << c.line;
        EXPECT_EQ(bag().ammo(1), infiniteAmmo) << c.line;
    }
    run("useitem");
    EXPECT_EQ(console.lines, std::vector<std::string>{"Usage: useitem itemname"});
    EXPECT_EQ(logOf([&] { run("give megaquad"); }), "");
    EXPECT_FLOAT_EQ(player->damageFactor, 8);
}

TEST_F(InventoryTest, UpgradeRaisesTracksNotTheLevel) {
    for (const char* line : {"upgrade", "upgrade health", "upgrade health", "upgrade armor 4",
                             "upgrade swarm 5", "upgrade swarm", "upgrade rubbish 3"})
        run(line);
    EXPECT_EQ(player->progress.healthLevel, 3);
    EXPECT_EQ(player->progress.maxHealth, 300);
    EXPECT_EQ(player->progress.armourLevel, 4);
    EXPECT_EQ(player->progress.swarmLevel, 5);
    EXPECT_EQ(player->progress.currentLevel, 0);
}

TEST_F(InventoryTest, DefinitionsComeFromTheFile) {
    // Without a file the built-in numbers hold.
    EXPECT_FLOAT_EQ(bag().weaponObject(weapon::pistol)->delay, 500);
    EXPECT_NE(logOf([&] {
                  run("reloadweapondefs");
              }).find("Can't load weapon definition file: data/weapons.xml\n"),
              std::string::npos);
    EXPECT_FLOAT_EQ(bag().weaponObject(weapon::railgun)->knockback, 60);
    put(data() + "/data/weapons.xml",
        "<w><shotgun numshots='3' damage='7' delay='250' knockback='2' range='400'/>"
        "<pistol damage='21' delay='11'/></w>");
    const std::string log = logOf([&] { run("reloadweapondefs"); });
    const auto* shotgun = dynamic_cast<ShotgunWeapon*>(bag().weaponObject(weapon::shotgun));
    EXPECT_EQ(shotgun->shots, 3);
    EXPECT_EQ(shotgun->damage, 7);
    EXPECT_FLOAT_EQ(shotgun->range, 400);
    EXPECT_FLOAT_EQ(shotgun->spread, 0);  // left out
    EXPECT_EQ(bag().weaponObject(weapon::pistol)->damage, 21);
    EXPECT_EQ(bag().weaponObject(weapon::railgun)->damage, 100);
    EXPECT_NE(log.find("Couldn't read railgun weapon info from: data/weapons.xml\n"),
              std::string::npos);
    EXPECT_EQ(log.find("Couldn't read pistol"), std::string::npos);
    // Numbers that would heal or overflow are cut, and it is said.
    put(data() + "/data/weapons.xml",
        "<w><rocket damage='-9' delay='-1' radius='1e30' speed='400' knockback='-3'/></w>");
    EXPECT_NE(logOf([&] { run("reloadweapondefs"); }).find("Weapon rocket: damage -9 cut to 0\n"),
              std::string::npos);
    const WeaponDefinitions::Rocket& rocket = weaponDefinitions().rocket;
    EXPECT_EQ(rocket.damage, 0);
    EXPECT_FLOAT_EQ(rocket.delay, 0);
    EXPECT_FLOAT_EQ(rocket.radius, 1e6F);
    EXPECT_FLOAT_EQ(rocket.knockback, -3);
}

TEST_F(InventoryTest, TheShippedDefinitionsAreWholeAndKeepTheWeaponsInCharacter) {
    put(data() + "/data/weapons.xml", get(test::sourcePath("assets/data/weapons.xml")));
    EXPECT_EQ(logOf([&] { run("reloadweapondefs"); }).find("Couldn't"), std::string::npos);
    for (int id = weapon::pistol; id <= weapon::lightningGun; ++id) {
        const FireableWeapon* w = bag().weaponObject(id);
        EXPECT_GT(w->delay, 0) << id;
        EXPECT_GT(w->damage, 0) << id;
        EXPECT_GT(w->range, 0) << id;
    }
    const WeaponDefinitions& d = weaponDefinitions();
    EXPECT_GT(d.grenade.mass, 0);
    EXPECT_GT(d.grenade.lifetime, 0);
    EXPECT_GT(d.rocket.speed, d.grenade.speed);
}

TEST_F(InventoryTest, HostileSavesLeaveAnInventory) {
    TiXmlDocument document;
    document.Parse(
        "<Player><inventory activeweap='77' bestweaponrating='-9'>"
        "<weapons w3='1' w99='1' w='1' x-5='1'/>"
        "<ammo a3='7' a1='-1' a1000000='5' a99999999999='1' a-1='3'/>"
        "<delays w11='1e30' w2='100'/></inventory></Player>");
    bag().loadState(*document.RootElement(), Digits::exact);
    EXPECT_EQ(bag().activeWeapon(), weapon::pistol);
    EXPECT_EQ(bag().ammo(3), 7);
    EXPECT_EQ(bag().ammo(4), 0);
    EXPECT_TRUE(bag().owns(3));
    EXPECT_FALSE(bag().owns(2));
    EXPECT_FLOAT_EQ(bag().weaponObject(weapon::pistol)->nextFireTime, 100);
    bag().selectNext();
    EXPECT_EQ(bag().activeWeapon(), 3);
}

}  // namespace
}  // namespace bc
