// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "gameplay/actors/GameBody.h"
#include "gameplay/actors/GameCategories.h"
#include "gameplay/actors/Gib.h"
#include "support/PlayFixture.h"
#include "world/BodyFactory.h"
#include "world/LevelLoader.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <climits>

namespace bc {
namespace {

/// Refuses one kind of damage, halves another, and notes what sets it off.
class Picky final : public GameBody {
  public:
    std::vector<GameBody*> activators;
    bool relays = false;
    bool canBeHurtBy(int kind) const override { return kind != damage::plasma; }
    int adjustIncomingDamage(int amount, int kind) override {
        return kind == damage::rail ? amount / 2 : amount;
    }
    void onTriggered(GameBody* activator) override {
        activators.push_back(activator);
        if (relays)
            fireTargetsAs(activator);
    }
};

class GameBodyTest : public test::PlayFixture {};

struct DamageCase {
    const char* what;
    int difficulty;
    std::uint32_t side;
    int armour;
    float invincibility;  // below 0: none
    int amount, type;
    int health, armourAfter;
};

TEST_F(GameBodyTest, DamageGoesThroughInvincibilityDifficultyAndArmour) {
    const DamageCase cases[] = {
        {"armour used up", 3, team::enemy, 20, -1, 30, damage::pistol, 90, 0},
        {"armour takes all", 3, team::enemy, 50, -1, 20, damage::pistol, 100, 30},
        {"player, easiest", 1, team::player, 0, -1, 15, damage::pistol, 93, 0},
        {"player, easy", 2, team::player, 0, -1, 15, damage::pistol, 89, 0},
        {"player, hardest", 4, team::player, 0, -1, 15, damage::pistol, 82, 0},
        {"enemy, easiest", 1, team::enemy, 0, -1, 15, damage::pistol, 78, 0},
        {"enemy, easy", 2, team::enemy, 0, -1, 15, damage::pistol, 82, 0},
        {"enemy, hardest", 4, 0, 0, -1, 15, damage::pistol, 85, 0},
        {"below 1 is 1", -3, team::player, 0, -1, 15, damage::pistol, 93, 0},
        {"above 4 is 4", 9, team::player, 0, -1, 15, damage::pistol, 82, 0},
        {"invincible", 3, team::player, 50, 0, 1000, damage::rocket, 100, 50},
        {"half invincible", 3, team::player, 5, 0.5F, 21, damage::rocket, 95, 0},
        {"refused type", 3, team::enemy, 0, -1, 50, damage::plasma, 100, 0},
        {"halved type", 3, team::enemy, 0, -1, 51, damage::rail, 75, 0},
        {"environment is no set of bits", 3, team::enemy, 0, -1, 9, damage::environment, 91, 0},
    };
    for (const DamageCase& c : cases) {
        vars().setVar("difficulty", std::to_string(c.difficulty));
        Picky body;
        body.takesDamage = true;
        body.showDamage = false;
        body.team.set(c.side);
        body.armour = c.armour;
        body.hasInvinc = c.invincibility >= 0;
        body.damageTakenFactor = c.invincibility;
        body.takeDamage(c.amount, c.type);
        EXPECT_EQ(body.health, c.health) << c.what;
        EXPECT_EQ(body.armour, c.armourAfter) << c.what;
    }
}

TEST_F(GameBodyTest, AbsurdNumbersStayNumbers) {
    GameBody body;
    body.takesDamage = true;
    body.showDamage = false;
    body.health = body.initialHealth = 50;
    body.numLives = 2;
    body.damageFactor = 1e30F;
    EXPECT_EQ(body.scaleOutgoingDamage(100), INT_MAX);
    EXPECT_EQ(body.scaleOutgoingDamage(-100), INT_MIN);
    body.addHealth(INT_MAX);
    EXPECT_EQ(body.health, 200);
    body.armour = INT_MIN;
    body.takeDamage(INT_MAX, 1);
    EXPECT_TRUE(body.inLimbo);
    EXPECT_LT(body.health, -1000000);
    body.inLimbo = false;
    body.numLives = INT_MIN;
    body.die();
    EXPECT_LT(body.numLives, 0);
}

TEST_F(GameBodyTest, BleedsWhetherOrNotItIsHurt) {
    GameBody* body = addTarget({50, 0});
    body->showDamage = true;
    body->takesDamage = false;
    body->takeDamage(10, 1);
    EXPECT_EQ(systemsOf("debugblood"), 1);
    EXPECT_EQ(body->health, 1000);
    body->takesDamage = true;
    body->godMode = true;
    body->takeDamage(10, 1);
    EXPECT_EQ(systemsOf("debugblood"), 2);
    EXPECT_EQ(body->health, 1000);
}

TEST_F(GameBodyTest, TwoLivesLimboRevivalAndTheEnd) {
    GameBody* body = addTarget({60, 0});
    Picky* target = add<Picky>({500, 0});
    body->addTarget(target);
    // In its place for all that gravity does, and whether or not it ever thinks.
    gravity = -60;
    body->gravitymultiplier = 1;
    body->numLives = 2;
    body->initialHealth = 70;
    body->vel = Vector(10, 0);
    body->takeDamage(5000, 1);
    EXPECT_TRUE(body->inLimbo);
    EXPECT_FALSE(body->visible || body->solid || body->dying);
    EXPECT_TRUE(target->activators.empty());
    body->takeDamage(5000, 1);  // out of reach
    EXPECT_EQ(body->numLives, 1);
    const Vector place = body->pos;
    stepMsecs(2900);
    EXPECT_TRUE(body->inLimbo);
    stepMsecs(125);
    EXPECT_FALSE(body->inLimbo);
    EXPECT_TRUE(body->visible && body->solid);
    EXPECT_EQ(body->health, 70);
    EXPECT_FLOAT_EQ(body->oldpos.x, place.x);
    EXPECT_FLOAT_EQ(body->oldpos.y, place.y);
    body->takeDamage(5000, 1);
    ASSERT_EQ(target->activators.size(), 1U);
    EXPECT_EQ(target->activators[0], body);
    const std::size_t before = game.world.allBodies().size();
    step();
    EXPECT_EQ(game.world.allBodies().size(), before - 1);
}

TEST_F(GameBodyTest, GibsOnlyBelowMinusTenAndWithinTheBudget) {
    struct Case {
        int damage;
        bool canGib, gibs;
    };
    for (const Case& c : {Case{20, true, false}, {21, false, false}, {21, true, true}}) {
        GameBody* body = addTarget({60, 0});
        body->health = 10;
        body->showDamage = true;
        body->canGib = c.canGib;
        body->takeDamage(c.damage, 1);
        EXPECT_EQ(bodiesOfType("gib") > 0, c.gibs) << c.damage;
        EXPECT_EQ(game.overlays > 0, c.gibs);
    }
    // With what is left of ten: never more, and all of it comes back.
    for (int i = 0; i < 10; ++i)
        addTarget({60, 0})->throwGibs({60, 0});
    EXPECT_EQ(bodiesOfType("gib"), 10);
    EXPECT_EQ(gameplay->gibCount(), 10);
    stepMsecs(3300);
    EXPECT_EQ(bodiesOfType("gib"), 0);
    EXPECT_EQ(gameplay->gibCount(), 0);
    EXPECT_FLOAT_EQ(game.overlay->colourRate.a, -300);
}

TEST_F(GameBodyTest, GibBudgetIsFreeAgainOnANewLevel) {
    addTarget({60, 0})->throwGibs({60, 0});
    ASSERT_GT(gameplay->gibCount(), 0);
    endLevel();
    startLevel();
    int asked = 12;
    gameplay->reserveGibs(asked);
    EXPECT_EQ(asked, 10);
    int more = 3;
    gameplay->reserveGibs(more);
    EXPECT_EQ(more, 0);
}

TEST_F(GameBodyTest, GibsPassThroughWhoeverTakesASideAndSoundOnWalls) {
    const Gib gib;
    EXPECT_FALSE(gib.acceptsCollision(*player));
    EXPECT_FALSE(gib.acceptsCollision(*addTarget({300, 0})));
    Body* wall = addWall({0, -200}, 400, 20);
    EXPECT_TRUE(gib.acceptsCollision(*wall));
    Body rocket;
    rocket.category = category::rocket;
    EXPECT_FALSE(gib.acceptsCollision(rocket));
    Gib loud;
    const Vector up(0, 1);
    loud.vel = Vector(0, -9);
    step(20);
    const TouchInfo touch{wall, &loud, &up, &up, 0.5F};
    loud.onTouch(touch);
    loud.onTouch(touch);
    EXPECT_EQ(game.sound.plays.size(), 1U);
    stepMsecs(275);
    loud.onTouch(touch);
    loud.vel = Vector(100, 8);
    stepMsecs(275);
    loud.onTouch(touch);
    EXPECT_EQ(game.sound.plays.size(), 2U);
}

TEST_F(GameBodyTest, DeadChildLeavesItsOwnerForGoodOnly) {
    GameBody* owner = addTarget({100, 0});
    GameBody* child = addTarget({200, 0});
    child->adoptBy(*owner);
    owner->numAlive = 1;
    child->numLives = 2;
    child->takeDamage(5000, 1);
    EXPECT_EQ(owner->numAlive, 1);
    child->inLimbo = false;
    child->takeDamage(5000, 1);
    EXPECT_EQ(owner->numAlive, 0);
    EXPECT_TRUE(owner->children.empty());
    GameBody* orphan = addTarget({300, 0});
    orphan->adoptBy(*owner);
    owner->die();
    EXPECT_EQ(orphan->owner, nullptr);
}

TEST_F(GameBodyTest, NoLinkSurvivesABodyThatGoes) {
    GameBody* owner = addTarget({100, 0});
    GameBody* child = addTarget({200, 0});
    GameBody* other = addTarget({300, 0});
    child->adoptBy(*owner);
    owner->numAlive = 1;
    other->addTarget(child);
    game.world.destroyBody(child);
    EXPECT_TRUE(owner->children.empty());
    EXPECT_EQ(owner->numAlive, 0);
    EXPECT_TRUE(other->targetBodies.empty());
    other->adoptBy(*owner);
    game.world.destroyBody(owner);
    EXPECT_EQ(other->owner, nullptr);
}

TEST_F(GameBodyTest, TargetsFireInOrderAndCirclesEnd) {
    Picky* first = add<Picky>({100, 0});
    Picky* second = add<Picky>({200, 0});
    Body* plain = addWall({0, -300}, 20, 20);
    GameBody* source = addTarget({300, 0});
    for (Body* target : {static_cast<Body*>(first), plain, static_cast<Body*>(second)})
        source->addTarget(target);
    source->fireTargets();
    EXPECT_EQ(first->activators, std::vector<GameBody*>{source});
    EXPECT_EQ(second->activators, std::vector<GameBody*>{source});
    // Two relays that set each other off pass the first activator on, and come to an end.
    first->addTarget(second);
    second->addTarget(first);
    first->relays = second->relays = true;
    const std::string log = logOf([&] { first->trigger(source); });
    EXPECT_NE(log.find("Triggers in a circle"), std::string::npos);
    EXPECT_EQ(second->activators.back(), source);
}

TEST_F(GameBodyTest, EventsAreLoggedWhileAskedFor) {
    GameBody* body = addTarget({100, 0});
    body->armour = 5;
    EXPECT_EQ(logOf([&] { body->takeDamage(20, 4); }), "");
    for (const char* name : {"logdamage", "logtriggers"})
        vars().createOrSet(name, "1", "");
    const std::string id = std::to_string(body->autoid);
    EXPECT_EQ(logOf([&] { body->takeDamage(20, 4); }),
              "damage " + id + " amount 20 type 4 absorbed 0 health 965\n");
    EXPECT_EQ(logOf([&] { body->trigger(player); }), "triggered " + id + " by 1\n");
}

/// What a save keeps of the world: everything but the player, read back into an empty world.
void reload(World& world, BodyFactory& factory) {
    TiXmlElement root("save");
    saveEntities(world, root);
    Body* player = world.player();
    world.clear();
    world.quadtree().init(Vector(), 2000, 2);
    LevelBodies bodies;
    ASSERT_TRUE(readSavedBodies(factory, root, "save", bodies));
    insertBodies(world, std::move(bodies), true);
    world.addBody(player, false);
}

class NamedGameBody final : public GameBody {
  public:
    NamedGameBody() { type = "named"; }
    std::unique_ptr<Body> create() const override { return std::make_unique<NamedGameBody>(); }
};

TEST_F(GameBodyTest, SavesKeepStateAndOwners) {
    BodyFactory factory;
    factory.registerPrototype(std::make_unique<NamedGameBody>());
    auto* owner = add<NamedGameBody>({100, 50});
    auto* child = add<NamedGameBody>({200, 50});
    auto* pet = add<NamedGameBody>({300, 50});
    for (GameBody* body : {owner, child, pet})
        body->entity = true;
    child->adoptBy(*owner);
    pet->adoptBy(*player);
    owner->numAlive = 1;
    owner->armour = 33;
    owner->numLives = 3;
    owner->nextPainTime = 1234;
    owner->hasInvinc = true;
    owner->damageTakenFactor = 0.25F;
    const int ownerId = owner->autoid;
    const int childId = child->autoid;
    const int petId = pet->autoid;
    reload(game.world, factory);
    auto* again = dynamic_cast<GameBody*>(game.world.findById(ownerId));
    auto* childAgain = dynamic_cast<GameBody*>(game.world.findById(childId));
    auto* petAgain = dynamic_cast<GameBody*>(game.world.findById(petId));
    ASSERT_TRUE(again != nullptr && childAgain != nullptr && petAgain != nullptr);
    EXPECT_EQ(again->armour, 33);
    EXPECT_EQ(again->numLives, 3);
    EXPECT_FLOAT_EQ(again->nextPainTime, 1234);
    EXPECT_FLOAT_EQ(again->damageTakenFactor, 0.25F);
    EXPECT_EQ(again->children, std::vector<GameBody*>{childAgain});
    EXPECT_EQ(again->numAlive, 1);
    EXPECT_EQ(childAgain->owner, again);
    EXPECT_EQ(petAgain->owner, player);
}

}  // namespace
}  // namespace bc
