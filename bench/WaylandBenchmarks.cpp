// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "bench/ManyDisplays.h"
#include "platform/wayland/WlrDisplayService.h"
#include "tests/support/GammaCompositor.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

namespace {

/// From an edit until the compositor has read the new table, including one query whether it has.
void editUntilReceived(benchmark::State& state) {
    const std::string output = "DP-1";
    GammaCompositor compositor;
    compositor.plug(output, 0, static_cast<std::uint32_t>(state.range(0)));
    ManualRunLoop loop;
    WlrDisplayService::Surroundings surroundings;
    surroundings.runLoop = &loop;
    const auto service =
        WlrDisplayService::open(compositor.socket().c_str(), std::move(surroundings));
    if (!service) {
        state.SkipWithError(service.error().sentence.c_str());
        return;
    }
    ScreenRegistry registry(**service);
    const auto screen = registry.screens().front();
    screen->setGammaCurve(exampleCurve(0));
    screen->applyGammaCurve();
    HardwareRamp last = compositor.ramp(output);
    int step = 0;
    bool isGood = true;
    for ([[maybe_unused]] auto _ : state) {
        constexpr int stepCount = 1000;
        step = (step + 1) % stepCount;
        screen->gammaCurve()->middlePoint()->setRedValue(1.0F + static_cast<float>(step) * 0.0005F);
        screen->applyGammaCurve();
        HardwareRamp now = last;
        for (int asked = 0; now == last && asked < 10000; ++asked) {
            now = compositor.ramp(output);
            // Takes the compositor's confirmation, so that the next table may be sent.
            loop.pollReadable(std::chrono::milliseconds(0));
        }
        isGood = isGood && now != last;
        last = std::move(now);
    }
    if (!isGood) {
        state.SkipWithError("The compositor did not receive every table.");
    }
}
BENCHMARK(editUntilReceived)
    ->Name("wayland/edit until received")
    ->Arg(256)
    ->Arg(4096)
    ->UseRealTime();

}  // namespace

}  // namespace tonquil
