// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "bench/BareRampLoop.h"
#include "bench/ManyDisplays.h"
#include "bench/ThreeDisplays.h"
#include "platform/x11/displays/X11DisplayService.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

namespace {

constexpr std::size_t displayCount = 3;

/// One server for all benchmarks; stopped at program exit.
XServer* server(benchmark::State& state) {
    static const auto started = startThreeDisplays();
    if (!started) {
        state.SkipWithError(started.error().sentence.c_str());
        return nullptr;
    }
    return started->get();
}

/// Applies the screens' curves to their displays; false if a display refused its curve.
bool applyAll(DisplayService& service, const ScreenRegistry::Screens& screens) {
    DisplayBatch batch(service);
    for (const auto& screen : screens) {
        screen->applyGammaCurve();
    }
    return batch.finish();
}

/// Applies the curves repeatedly, after `change` was applied to each screen's.
template <typename Change>
void applyRepeatedly(benchmark::State& state, Change change) {
    const XServer* const x = server(state);
    if (x == nullptr) {
        return;
    }
    const auto service = X11DisplayService::open(x->display().c_str(), nullptr, {});
    if (!service) {
        state.SkipWithError(service.error().sentence.c_str());
        return;
    }
    ScreenRegistry registry(**service);
    const ScreenRegistry::Screens screens = registry.screens();
    for (const auto& screen : screens) {
        screen->setGammaCurve(exampleCurve(0));
    }
    bool isGood = screens.size() == displayCount && applyAll(**service, screens);
    for ([[maybe_unused]] auto _ : state) {
        change(screens);
        isGood = applyAll(**service, screens) && isGood;
    }
    if (!isGood) {
        state.SkipWithError("Not every display took its table.");
    }
    (*service)->restoreSystemCalibration();
}

void reapplyOurs(benchmark::State& state) {
    applyRepeatedly(state, [](const ScreenRegistry::Screens&) {});
}
BENCHMARK(reapplyOurs)->Name("x11/3displays/reapply/ours")->UseRealTime();

/// The cost of unchanged ramps without any of our code; see `BareRampLoop`.
void reapplyBare(benchmark::State& state) {
    const XServer* const x = server(state);
    if (x == nullptr) {
        return;
    }
    BareRampLoop loop(x->display());
    bool isGood = loop.displayCount() == displayCount;
    for ([[maybe_unused]] auto _ : state) {
        isGood = loop.reapply() && isGood;
    }
    if (!isGood) {
        state.SkipWithError("Not every display took its ramp.");
    }
}
BENCHMARK(reapplyBare)->Name("x11/3displays/reapply/bare")->UseRealTime();

/// The cost of dragging a slider: each table is recomputed, converted and recorded.
void edit(benchmark::State& state) {
    int step = 0;
    applyRepeatedly(state, [&](const ScreenRegistry::Screens& screens) {
        constexpr int stepCount = 1000;
        step = (step + 1) % stepCount;
        for (const auto& screen : screens) {
            screen->gammaCurve()->middlePoint()->setRedValue(1.0F +
                                                             static_cast<float>(step) * 0.0005F);
        }
    });
}
BENCHMARK(edit)->Name("x11/3displays/edit")->UseRealTime();

}  // namespace

}  // namespace tonquil
