// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// Moving particles: the manager against bare arrays that do the same arithmetic and nothing else.
#include "particles/ParticleManager.h"
#include "view/Frustum.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr int systemCount = 20;
constexpr int particlesEach = 250;
constexpr float step = 1.0F / 120;

/// Particles that outlive any run of the benchmark, so that both sides always move all of them.
bc::ParticleSystemParams definition() {
    bc::ParticleSystemParams d;
    d.id = "bench";
    d.initialParticles = particlesEach;
    d.maxParticles = particlesEach;
    d.posVarLow = {-50, -50, 0};
    d.posVarHigh = {50, 50, 0};
    d.velVarLow = {-1, -1, 0};
    d.velVarHigh = {1, 1, 0};
    d.acc = {0.001F, -0.001F, 0};
    d.colour = {200, 150, 100, 255};
    d.colourVel = {-1, 1, -1, 0};
    d.dimension = {8, 8};
    d.endDimension = {8, 8};
    d.particleLifeTime = 1e6F;
    return d;
}

void BM_ManagerUpdate(benchmark::State& state) {
    bc::ParticleManager manager;
    manager.addDefinition(definition());
    for (int i = 0; i < systemCount; ++i)
        manager.createFromDefinition("bench")->emitInitial();
    const bc::Frustum everything;
    for (auto _ : state)
        manager.update(step, everything);
    state.SetItemsProcessed(state.iterations() * manager.particleCount());
}
BENCHMARK(BM_ManagerUpdate);

void BM_BareArraysUpdate(benchmark::State& state) {
    constexpr int n = systemCount * particlesEach;
    enum Quantity {
        x,
        y,
        z,
        vx,
        vy,
        vz,
        ax,
        ay,
        az,
        w,
        h,
        dw,
        dh,
        r,
        g,
        b,
        a,
        dr,
        dg,
        db,
        da,
        age,
        life,
        all
    };
    std::array<std::vector<float>, all> q;
    for (auto& values : q)
        values.assign(n, 1);
    std::fill(q[life].begin(), q[life].end(), 1e6F);
    int dead = 0;
    for (auto _ : state) {
        for (const auto& [value, change] :
             {std::pair{x, vx}, {y, vy}, {z, vz}, {vx, ax}, {vy, ay}, {vz, az}, {w, dw}, {h, dh}}) {
            float* __restrict out = q[value].data();
            const float* __restrict in = q[change].data();
            for (int i = 0; i < n; ++i)
                out[i] += in[i] * step;
        }
        for (const auto& [value, change] : {std::pair{r, dr}, {g, dg}, {b, db}, {a, da}}) {
            float* __restrict out = q[value].data();
            const float* __restrict in = q[change].data();
            for (int i = 0; i < n; ++i)
                out[i] = std::clamp(out[i] + in[i] * step, 0.0F, 255.0F);
        }
        float* __restrict ages = q[age].data();
        const float* __restrict lives = q[life].data();
        for (int i = 0; i < n; ++i) {
            ages[i] += step;
            dead += ages[i] > lives[i] ? 1 : 0;
        }
        benchmark::ClobberMemory();
    }
    benchmark::DoNotOptimize(dead);
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_BareArraysUpdate);

/// A rocket's worth of effects started, run to their end and used again.
void BM_StartAndEnd(benchmark::State& state) {
    bc::ParticleManager manager;
    bc::ParticleSystemParams d = definition();
    d.initialParticles = d.maxParticles = 24;
    d.particleLifeTime = 0.4F;
    d.systemLifeTime = 0.5F;
    manager.addDefinition(d);
    const bc::Frustum everything;
    for (auto _ : state) {
        for (int i = 0; i < 11; ++i)
            manager.createFromDefinition("bench")->emitInitial();
        for (int i = 0; i < 62; ++i)
            manager.update(step, everything);
    }
}
BENCHMARK(BM_StartAndEnd);

}  // namespace

BENCHMARK_MAIN();
