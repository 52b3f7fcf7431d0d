// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
// The world's step and its traces beside those of two well-known engines, on the same scenes.
#include "WorldScene.h"

#include <benchmark/benchmark.h>

namespace bc::bench {

namespace {

using Maker = std::unique_ptr<Contender> (*)(const WorldScene&);

constexpr int warmUpSteps = 200;
constexpr int timedSteps = 400;

struct Engine {
    const char* name;
    Maker make;
};
constexpr Engine engines[] = {
    {"game", makeGameWorld}, {"box2d", makeBox2D}, {"chipmunk", makeChipmunk}};

void stepScene(benchmark::State& state, Maker make, const char* sceneName) {
    const WorldScene scene = readScene(sceneName);
    const std::unique_ptr<Contender> contender = make(scene);
    for (int i = 0; i < warmUpSteps; ++i)
        contender->step();
    for (auto _ : state)
        contender->step();
    state.counters["time_per_body"] = benchmark::Counter(
        static_cast<double>(scene.boxes.size()),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// One iteration is all rays of the file.
void traceScene(benchmark::State& state, Maker make, const char* raysName) {
    const std::unique_ptr<Contender> contender = make(readScene("s1_1000"));
    const WorldScene rays = readScene(raysName);
    int hits = 0;
    for (auto _ : state) {
        hits = 0;
        for (const WorldScene::Segment& ray : rays.rays)
            hits += contender->trace(ray);
        benchmark::DoNotOptimize(hits);
    }
    state.counters["hits"] = hits;
}

void registerAll() {
    for (const char* scene : {"s1_100", "s1_1000", "s1_10000", "s2_100", "s2_1000", "s2_10000"})
        for (const Engine& engine : engines)
            benchmark::RegisterBenchmark((std::string("step/") + scene + '/' + engine.name).c_str(),
                                         stepScene, engine.make, scene)
                ->Iterations(timedSteps)
                ->Unit(benchmark::kMicrosecond);
    for (const char* rays : {"rays_290", "rays_8096"})
        for (const Engine& engine : engines)
            benchmark::RegisterBenchmark((std::string("trace/") + rays + '/' + engine.name).c_str(),
                                         traceScene, engine.make, rays)
                ->Unit(benchmark::kMicrosecond);
}

}  // namespace

}  // namespace bc::bench

int main(int argc, char** argv) {
    bc::bench::registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
