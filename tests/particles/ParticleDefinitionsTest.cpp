// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The definitions that the game ships.
#include "core/Text.h"
#include "particles/ParticleSystemParams.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <tinyxml.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace bc {
namespace {

const std::string assets = test::sourcePath("assets/");

/// Everything that the code and the rules of play start by name.
constexpr const char* wanted =
    "attractor bloodtrail boostflame bullethit debugblood debugbloodexplosion debugbloodsmall "
    "debugtrail deathghost engineering explosionfire explosionshock explosionspark "
    "invincibleeffect invinciblepickup itemrespawn2 lightning megahealth megaquadpickup plasma "
    "plasmatrail quadeffect quadpickup rail rocketflame rocketflameenemy smallbloodexplosion spark "
    "swarmburst teleporter text tracer watersplash "
    "chaingunflash pistolflash shotgunflash";

bool hasSource(const std::string& image) {
    return std::filesystem::exists(
        std::filesystem::path(assets + "images/" + image).replace_extension(".svg"));
}

TEST(ParticleDefinitions, AreCompleteAndEnd) {
    TiXmlDocument document;
    ASSERT_TRUE(document.LoadFile((assets + "data/particles/particles.xml").c_str()));
    std::map<std::string, ParticleSystemParams> all;
    for (const auto* e = document.RootElement()->FirstChildElement(); e != nullptr;
         e = e->NextSiblingElement()) {
        ParticleSystemParams d;
        d.read(*e);
        EXPECT_TRUE(all.emplace(d.id, d).second) << d.id << " twice";
    }
    std::vector<std::string> names;
    tokenise(" ", wanted, names);
    for (const std::string& name : names)
        EXPECT_TRUE(all.contains(name)) << name;
    for (const auto& [id, d] : all) {
        EXPECT_TRUE(d.texture.empty() ? id == "text" : hasSource(d.texture)) << id << d.texture;
        // What only bursts has to end by itself, or it would be kept for ever.
        EXPECT_TRUE(d.flowRate > 0 || (d.initialParticles > 0 && d.systemLifeTime > 0)) << id;
        EXPECT_LE(d.initialParticles, d.maxParticles) << id;
        EXPECT_GT(d.particleLifeTime + d.particleLifeTimeLow, 0) << id;
        // A particle is not cut off by the end of its system.
        const float longest = d.particleLifeTime + d.particleLifeTimeHigh;
        EXPECT_TRUE(d.systemLifeTime <= 0 || d.systemLifeTime >= longest) << id;
    }
    for (const char* image : {"lightning2", "lightning3", "plasma2", "plasma3", "plasma4", "cloud",
                              "brightpart", "laserbeam", "magneticpulse"})
        EXPECT_TRUE(hasSource(std::string("particles/") + image + ".png")) << image;
}

}  // namespace
}  // namespace bc
