// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "bench/ManyDisplays.h"
#include "screens/DisplayService.h"

namespace tonquil {

namespace {

/// Applies curves to three displays at once, all unchanged since the last time.
void reapply(benchmark::State& state) {
    ManyDisplays displays(3);
    for ([[maybe_unused]] auto _ : state) {
        DisplayBatch batch(displays.service);
        for (const auto& screen : displays.registry.screens()) {
            screen->applyGammaCurve();
        }
        if (!batch.finish()) {
            state.SkipWithError("Not every display took its table.");
            break;
        }
    }
}
BENCHMARK(reapply)->Name("simulated/3displays/reapply");

/// The cost of a restart: identifies 25 displays and reads their calibrations.
void listScreens(benchmark::State& state) {
    ManyDisplays displays(ScreenRegistry::mostScreens);
    for ([[maybe_unused]] auto _ : state) {
        ScreenRegistry registry(displays.service);
        benchmark::DoNotOptimize(registry.screens().data());
    }
}
BENCHMARK(listScreens)->Name("simulated/25displays/list");

}  // namespace

}  // namespace tonquil
