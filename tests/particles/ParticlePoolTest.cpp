// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "core/Random.h"
#include "particles/ParticlePool.h"

#include <gtest/gtest.h>

#include <vector>

namespace bc {
namespace {

Particle randomParticle() {
    const auto any = [] { return randomRange(-300, 300); };
    Particle p;
    p.pos = {any(), any(), any()};
    p.vel = {any(), any(), any()};
    p.acc = {any(), any(), any()};
    p.colour = {any(), any(), any(), any()};
    p.colourVel = {any(), any(), any(), any()};
    p.setSize(any(), any());
    p.setEndSize(any(), any());
    p.age = 0;
    p.lifeTime = randomRange(0.1F, 0.5F);
    p.variant = randomInt() % 4;
    return p;
}

// Whole blocks, partial ones and their borders move exactly as single particles do, and the dead
// leave in the order of one-by-one removal.
TEST(ParticlePool, MovesAndRemovesLikeSingleParticles) {
    for (const int count : {1, 7, 8, 9, 16, 21}) {
        seedRandom(static_cast<std::uint32_t>(count));
        ParticlePool pool;
        pool.reset(count);
        std::vector<Particle> model;
        for (int i = 0; i < count; ++i) {
            model.push_back(randomParticle());
            model.back().immortal = i % 5 == 4;
            pool.add(model.back());
        }
        for (int step = 0; step < 40; ++step) {
            pool.move(1.0F / 64);
            pool.removeDead();
            for (std::size_t i = 0; i < model.size();) {
                if (model[i].update(1.0F / 64)) {
                    ++i;
                    continue;
                }
                // The last one takes its place, not yet moved in this step.
                model[i] = model.back();
                model.pop_back();
            }
            ASSERT_EQ(pool.size(), static_cast<int>(model.size())) << count << " at " << step;
            for (std::size_t i = 0; i < model.size(); ++i) {
                const Particle p = pool.get(static_cast<int>(i));
                ASSERT_TRUE(p.pos.equals(model[i].pos) && p.vel.equals(model[i].vel));
                ASSERT_EQ(p.colour, model[i].colour);
                ASSERT_EQ(p.halfWidth, model[i].halfWidth);
                ASSERT_EQ(p.age, model[i].age);
                ASSERT_EQ(p.variant, model[i].variant);
            }
        }
        EXPECT_EQ(pool.size(), count / 5);
        EXPECT_TRUE(pool.onlyImmortal());
    }
}

TEST(ParticlePool, SizesGrowBySecondWhateverTheLife) {
    Particle p;
    p.setSize(8, 8);
    p.setEndSize(16, 16);
    p.lifeTime = 5;
    p.update(0.5F);
    EXPECT_EQ(p.width, 12);
    EXPECT_EQ(p.halfHeight, 6);
    p.update(1.5F);
    EXPECT_EQ(p.height, 24);
}

}  // namespace
}  // namespace bc
