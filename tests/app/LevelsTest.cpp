// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The levels that ship, played by script: the workshop bay by bay, and both races of the circuit.
#include "RunGame.h"

#include "core/Text.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace bc {
namespace {

/// A world dump with a state dump behind it, searched as text: they are large and many.
class Dump {
  public:
    explicit Dump(std::string text) : text_(std::move(text)) {}

    /// The first attribute of that name of a body, or of an element when no body has the name.
    [[nodiscard]] std::string value(const std::string& body, const std::string& attribute) const {
        std::size_t begin = text_.find("<P idname=\"" + body + "\"");
        std::size_t end = text_.find("</P>", begin);
        if (begin == std::string::npos) {
            begin = text_.find('<' + body + ' ');
            end = text_.find('>', begin);
        }
        const std::size_t at = text_.find(' ' + attribute + "=\"", begin);
        if (begin == std::string::npos || at >= end)
            return "none";
        const std::size_t from = at + attribute.size() + 3;
        return text_.substr(from, text_.find('"', from) - from);
    }
    [[nodiscard]] std::vector<float> numbers(const std::string& body, const char* attribute) const {
        std::vector<float> out(3);
        parseFloats(value(body, attribute), ",", out.data(), out.size());
        return out;
    }
    [[nodiscard]] int count(const std::string& part) const {
        int n = 0;
        for (std::size_t at = text_.find(part); at != std::string::npos;
             at = text_.find(part, at + 1))
            ++n;
        return n;
    }

  private:
    std::string text_;
};

/// The id of the player's craft.
constexpr const char* craft = "anarch";

/// Spent where nothing has to be waited for; what came of it is looked at after the next longer
/// visit, so that there are not too many dumps.
constexpr int briefly = 2;

struct Visit {
    /// Where to go; empty: stay out of everything's way.
    const char* place;
    /// And how many passes of 25 ms to spend there.
    int passes;
    const char* body;
    const char* attribute;
    const char* before;
    /// "@NAME": the body has come near that one. "^": it moves upwards fast.
    const char* after;
};

constexpr Visit visits[] = {
    {"lava_pool", 3, craft, "health", "100", "90"},
    {"take_quickhealth", 3, craft, "health", "90", "100"},
    {"pain_on", 3, craft, "health", "100", "95"},
    {"take_health", 3, craft, "health", "95", "100"},
    {"lava_pool", 3, craft, "health", "100", "90"},
    {"take_megahealth", 3, craft, "health", "90", "100"},
    {"pain_health", briefly, "pain_health", "available", "true", "true"},
    {"take_plasmagun", briefly, craft, "a2", "none", "10"},
    {"take_shotgun", briefly, craft, "a3", "none", "10"},
    {"take_chaingun", briefly, craft, "a4", "none", "10"},
    {"take_grenadelauncher", briefly, craft, "a5", "none", "10"},
    {"take_rocketlauncher", briefly, craft, "a6", "none", "10"},
    {"take_railgun", briefly, craft, "a7", "none", "10"},
    {"take_lightninggun", 3, craft, "a8", "none", "10"},
    {"", 210, "take_plasmagun", "available", "false", "true"},
    {"take_plasmagunammo", briefly, craft, "a2", "10", "60"},
    {"take_shotgunammo", briefly, craft, "a3", "10", "20"},
    {"take_chaingunammo", briefly, craft, "a4", "10", "60"},
    {"take_grenadelauncherammo", briefly, craft, "a5", "10", "15"},
    {"take_rocketlauncherammo", briefly, craft, "a6", "10", "15"},
    {"take_railgunammo", briefly, craft, "a7", "10", "15"},
    {"take_lightninggunammo", briefly, craft, "a8", "10", "60"},
    {"take_quickarmour", 3, craft, "armour", "0", "20"},
    {"take_armour", briefly, craft, "armour", "20", "70"},
    {"take_quad", 3, craft, "damagefactor", "1.000000", "4.000000"},
    {"take_megaquad", briefly, craft, "damagefactor", "4.000000", "8.000000"},
    {"take_cash", briefly, craft, "cash", "0", "125"},
    {"take_cash_again", briefly, "take_cash_again", "available", "true", "false"},
    {"take_screenwiper", briefly, "take_screenwiper", "available", "true", "false"},

    {"particles_switch", 3, "particles_switched", "on", "false", "true"},
    {"", 130, "particles_switched", "on", "true", "false"},
    {"trigger_once", 3, "trigger_fire", "on", "false", "true"},
    {"trigger_once", briefly, "trigger_fire", "on", "true", "true"},
    {"group_trigger", 3, "group_steam_3", "on", "false", "true"},
    {"chain_trigger", briefly, "chain_door", "visible", "true", "false"},
    {"message_here", briefly, "message_here", "triggered", "false", "true"},
    {"messenger_trigger", briefly, "messenger", "triggered", "false", "true"},
    {"drop_switch", 60, "drop_sparks", "on", "false", "true"},
    {"switch_again", 3, "switch_again", "texture", "data/images/switch.png",
     "data/images/switchtriggered.png"},
    {"", 90, "switch_again", "texture", "data/images/switchtriggered.png",
     "data/images/switch.png"},
    {"switch_once", 3, "switch_once_door", "solid", "true", "false"},
    {"", 90, "switch_once_door", "solid", "false", "false"},
    {"switch_own", briefly, "switch_own", "texture", "data/images/quickhealth.png",
     "data/images/health.png"},
    {"switch_two_b", 3, "two_gate", "visible", "true", "false"},

    {"door_slide_switch", 40, "door_slide", "isopen", "false", "true"},
    {"", 160, "door_slide", "isopen", "true", "false"},
    {"door_stay_switch", 30, "door_stay", "isopen", "false", "true"},
    {"", 200, "door_stay", "isopen", "true", "true"},
    // Through the clip, which the craft cannot pass.
    {"door_clip_switch", 60, "door_clip", "isopen", "false", "true"},
    {"alpha_close_switch", 3, "alpha_close", "solid", "true", "false"},
    {"", 125, "alpha_close", "solid", "false", "true"},
    {"alpha_open_switch", briefly, "alpha_open", "solid", "false", "true"},
    {"alpha_once_switch", 60, "alpha_once", "solid", "true", "false"},
    {"barrel_switch", 10, "barrel_sparks", "on", "false", "true"},

    {"slow_pickup", 3, "slow_pickup", "available", "true", "false"},
    {"slow_switch", 20, "slow_door", "isopening", "false", "true"},
    {"", 150, "slow_spawner", "numspawned", "1", "2"},
    {"", 180, "slow_door", "isopen", "false", "true"},
    {"", 100, "slow_pad", "ison", "false", "false"},
    {"", 180, "slow_alpha", "visible", "false", "true"},
    {"", 180, "slow_pickup", "available", "false", "true"},

    {"pad_up", 3, craft, "vel", "", "^"},
    {"pad_switch", briefly, "pad_switched", "ison", "false", "true"},
    {"pad_switched", 3, craft, "vel", "", "^"},
    {"teleporter_plain", 3, craft, "pos", "", "@teleport_exit_1"},
    {"teleporter_thrown", 3, craft, "vel", "", "^"},
    {"teleporter_idle", 3, craft, "pos", "", "@teleporter_idle"},
    {"water_pool", 3, craft, "inliquidlastframe", "false", "true"},
    {"pain_switch", 3, "pain_switched", "on", "false", "true"},
    {"", 130, "pain_switched", "on", "true", "false"},
    {"pain_off_switch", 130, "pain_off", "on", "true", "false"},
    {"take_invincibility", 3, craft, "damagetakenfactor", "1.000000", "0.000000"},
    {"pain_on", 4, craft, "health", "100", "100"},

    {"spawn_switch", 3, "spawn_crates", "numspawned", "0", "1"},
    {"", 130, "spawn_crates", "numspawned", "1", "3"},
    {"spawn_barrel_switch", 100, "spawn_barrels", "numspawned", "0", "1"},
    {"cage_pain_switch", 30, "spawn_barrels", "numspawned", "1", "2"},
    {"wave_switch", 220, "wave_door", "isopen", "false", "true"},
    {"", 60, "wave_clock", "fired", "6", "7"},

    {"sky_ember", 40, "sky", "current", "data/sky/nebula.xml", "data/sky/ember.xml"},
    {"race_start", 3, "Race", "active", "false", "true"},
    {"race_check", briefly, "race_check", "triggered", "false", "true"},
    {"race_end", 3, "Race", "active", "true", "false"},
    {"blocks_start", 3, "Race", "active", "false", "true"},
    {"race_reset", 3, "Race", "active", "true", "false"},
    {"back_teleporter", 3, craft, "pos", "", "@spine_places"},
};

void check(const Visit& visit, const Dump& before, const Dump& after) {
    SCOPED_TRACE(std::string(visit.place) + ": " + visit.body);
    const std::string expected = visit.after;
    if (expected[0] == '@') {
        const auto at = after.numbers(visit.body, visit.attribute);
        const auto there = after.numbers(expected.substr(1), "pos");
        EXPECT_LT(std::hypot(at[0] - there[0], at[1] - there[1]), 30);
    } else if (expected == "^") {
        EXPECT_GT(after.numbers(visit.body, visit.attribute)[1], 150);
    } else {
        EXPECT_EQ(before.value(visit.body, visit.attribute), visit.before) << "before";
        EXPECT_EQ(after.value(visit.body, visit.attribute), expected);
    }
}

/// Far from everything that is looked at.
constexpr const char* quiet = "bay_sound";

TEST(Levels, EveryBayOfTheWorkshopWorks) {
    RunGame game;
    std::string script = "0 map workshop\n0 set difficulty 3\n";
    int pass = 5;
    const auto at = [&](const std::string& line) {
        script += std::to_string(pass) + ' ' + line + '\n';
    };
    const auto go = [&](const std::string& place) {
        at("warpto " + place);
        at("killvelocity");
    };
    /// How many dumps there are before each visit; the last one is what it was before.
    std::vector<int> looks;
    int dumps = 0;
    const auto dump = [&]() {
        at("dumpworld w" + std::to_string(dumps));
        at("dumpstate s" + std::to_string(dumps));
        ++dumps;
    };
    dump();
    for (const Visit& visit : visits) {
        looks.push_back(dumps);
        go(*visit.place != '\0' ? visit.place : quiet);
        pass += visit.passes;
        if (visit.passes != briefly)
            dump();
        go(quiet);
        pass += 2;
    }
    game.script(script);
    ASSERT_EQ(game.headless({"--frames", std::to_string(pass)}), 0) << game.standardError();
    std::vector<Dump> dumped;
    dumped.reserve(static_cast<std::size_t>(dumps));
    for (int i = 0; i < dumps; ++i)
        dumped.emplace_back(game.read("w" + std::to_string(i)) +
                            game.read("s" + std::to_string(i)));
    for (std::size_t i = 0; i < std::size(visits); ++i) {
        const auto look = static_cast<std::size_t>(looks[i]);
        ASSERT_LT(look, dumped.size());
        check(visits[i], dumped[look - 1], dumped[look]);
    }
}

std::set<std::string> attributesOf(const TiXmlElement* e) {
    std::set<std::string> out;
    for (const auto* a = e != nullptr ? e->FirstAttribute() : nullptr; a != nullptr; a = a->Next())
        out.insert(a->Name());
    return out;
}

/// A saved game holds entities only, so what writes a state of its own or moves has to be one.
TEST(Levels, WhatHasSomethingToRememberIsAnEntity) {
    RunGame game;
    game.script("0 map workshop\n1 dumpworld\n");
    ASSERT_EQ(game.headless({"--frames", "3"}), 0) << game.standardError();
    TiXmlDocument document;
    document.Parse(game.read("worlddump.xml").c_str());
    ASSERT_NE(document.RootElement(), nullptr);
    const TiXmlElement* list = document.RootElement()->FirstChildElement("Objects");
    ASSERT_NE(list, nullptr);
    std::set<std::string> plain;
    for (const auto* p = list->FirstChildElement(); p != nullptr; p = p->NextSiblingElement())
        if (std::string(p->Attribute("type")) == "detail")
            plain = attributesOf(p->FirstChildElement("custom"));
    ASSERT_FALSE(plain.empty());
    int entities = 0;
    for (const auto* p = list->FirstChildElement(); p != nullptr; p = p->NextSiblingElement()) {
        const std::string type = p->Attribute("type");
        const TiXmlElement* params = p->FirstChildElement("params");
        if (type == "player" || params == nullptr)
            continue;
        bool remembers = parseFloat(params->Attribute("mass")) > 0;
        for (const std::string& name : attributesOf(p->FirstChildElement("custom")))
            remembers = remembers || plain.count(name) == 0;
        const std::string entity = params->Attribute("entity");
        EXPECT_TRUE(!remembers || entity == "true") << type;
        entities += remembers ? 1 : 0;
    }
    EXPECT_GT(entities, 100);
}

TEST(Levels, BothRacesOfTheCircuitCanBeRunToTheirEnd) {
    struct Race {
        /// What is done after the start, from pass 20 on.
        const char* moves;
        const char* says;
    };
    const Race races[] = {
        {"10 warpto start_line\n"
         "20 warpto checkpoint_1\n30 warpto checkpoint_2\n40 warpto checkpoint_3\n"
         "50 warpto checkpoint_4\n60 warpto checkpoint_5\n400 warpto finish_line\n",
         "Race Finished: 9.7"},
        // Each block is driven before the craft until it has fallen into the pit.
        {"10 warpto blocks_start\n20 warpto low_push\n21 killvelocity\n21 +moveright\n"
         "400 -moveright\n400 warpto left_push\n400 killvelocity\n401 +moveright\n"
         "900 -moveright\n900 warpto right_push\n900 killvelocity\n901 +moveright\n"
         "1500 -moveright\n",
         "Race Finished: "},
    };
    for (const Race& race : races) {
        SCOPED_TRACE(race.moves);
        RunGame game;
        game.script(std::string("0 map circuit\n0 god\n") + race.moves +
                    "1510 dumpworld\n1510 condump\n");
        ASSERT_EQ(game.headless({"--frames", "1512"}), 0) << game.standardError();
        EXPECT_EQ(Dump(game.read("worlddump.xml")).value("Race", "active"), "false");
        EXPECT_NE(game.read("condump.txt").find(race.says), std::string::npos)
            << game.read("condump.txt");
    }
}

TEST(Levels, TheirExitsLeadToEachOther) {
    RunGame game;
    game.script(
        "0 map workshop\n5 warpto exit_circuit\n100 dumpstate circuit.xml\n"
        "105 warpto exit_workshop\n200 dumpstate workshop.xml\n200 dumpworld\n"
        "205 warpto exit_hangar\n300 dumpstate hangar.xml\n");
    ASSERT_EQ(game.headless({"--frames", "302"}), 0) << game.standardError();
    for (const char* level : {"circuit", "workshop", "hangar"})
        EXPECT_EQ(Dump(game.read(level + std::string(".xml"))).value("game", "currentlevel"),
                  level + std::string(".xml"));
    const Dump back(game.read("worlddump.xml"));
    EXPECT_NEAR(back.numbers(craft, "pos")[0], back.numbers("from_elsewhere", "pos")[0], 1);
}

}  // namespace
}  // namespace bc
