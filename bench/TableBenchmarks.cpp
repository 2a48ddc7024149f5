// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "model/ComputedTable.h"
#include "model/KVGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "model/TableComputation.h"
#include "tests/model/PlainFormula.h"

namespace tonquil {

namespace {

using Computation = void (*)(const CurveValues&, GammaTable&, std::uint32_t);

BaseGamma straightBase() {
    BaseGamma base{.table = {}, .sampleCount = GammaTable::capacity};
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::size_t i = 0; i < GammaTable::capacity; ++i) {
            base.table.channel(c)[i] = static_cast<float>(i) / 255.0F;
        }
    }
    return base;
}

CurveValues curveWithExponents(std::int32_t mode, float red, float green, float blue) {
    return {.channels = {{{.black = 0.02F, .middle = red, .white = 0.97F},
                          {.black = 0.01F, .middle = green, .white = 0.98F},
                          {.black = 0.03F, .middle = blue, .white = 0.94F}}},
            .blendingMode = mode};
}

void computeTable(benchmark::State& state, Computation compute, const CurveValues& curve) {
    const BaseGamma base = straightBase();
    GammaTable table;
    for ([[maybe_unused]] auto _ : state) {
        table = base.table;
        compute(curve, table, base.sampleCount);
        benchmark::DoNotOptimize(table);
    }
}

void registerPair(const std::string& name, const CurveValues& curve) {
    benchmark::RegisterBenchmark((name + "/ours").c_str(), computeTable, &computeTransferTable,
                                 curve);
    benchmark::RegisterBenchmark((name + "/plain").c_str(), computeTable, &computeByPlainFormula,
                                 curve);
}

[[maybe_unused]] const bool areRegistered = [] {
    for (const auto& [modeName, mode] :
         {std::pair("absolute", std::int32_t{KVBlendingModeAbsolute}),
          std::pair("overBase", std::int32_t{KVBlendingModeBaseTable})}) {
        const std::string name = std::string("table/") + modeName;
        registerPair(name + "/distinctExponents", curveWithExponents(mode, 1.1F, 1.2F, 0.9F));
        registerPair(name + "/equalExponents", curveWithExponents(mode, 1.2F, 1.2F, 1.2F));
        registerPair(name + "/neutralExponents", curveWithExponents(mode, 1, 1, 1));
    }
    return true;
}();

/// The cost of re-applying an unchanged curve.
void keptTable(benchmark::State& state) {
    const BaseGamma base = straightBase();
    const CurveValues curve = curveWithExponents(KVBlendingModeBaseTable, 1.1F, 1.2F, 0.9F);
    ComputedTable computed;
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(&computed.tableFor(curve, base));
    }
}
BENCHMARK(keptTable)->Name("table/kept");

void flatten(benchmark::State& state) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithMasterBlack(
        0.05F, 1.1F, 0.95F, KVGammaPoint::gammaPointWithRed(0.02F, 0.01F, 0.03F),
        KVGammaPoint::gammaPointWithRed(1.1F, 1.2F, 0.9F),
        KVGammaPoint::gammaPointWithRed(0.97F, 0.98F, 0.94F), KVBlendingModeBaseTable);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(curve->flatGammaCurve());
    }
}
BENCHMARK(flatten)->Name("curve/flatten");

}  // namespace

}  // namespace tonquil
