// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "bench/ManyDisplays.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

constexpr std::uint32_t storedDisplays = 25;

PropertyValue allScreens() {
    ManyDisplays displays(storedDisplays);
    return displays.registry.gammaCurveDictionary();
}

void writeCurve(benchmark::State& state) {
    const auto curve = exampleCurve(1);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(curve->gammaCurveDictionary());
    }
}
BENCHMARK(writeCurve)->Name("dictionary/curve/write");

void readCurve(benchmark::State& state) {
    const PropertyValue dictionary = exampleCurve(1)->gammaCurveDictionary();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary));
    }
}
BENCHMARK(readCurve)->Name("dictionary/curve/read");

void writeAllScreens(benchmark::State& state) {
    ManyDisplays displays(storedDisplays);
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(displays.registry.gammaCurveDictionary());
    }
}
BENCHMARK(writeAllScreens)->Name("dictionary/25displays/write");

/// From a dictionary to curves assigned to their displays, none of them applied.
void adoptAllScreens(benchmark::State& state) {
    ManyDisplays displays(storedDisplays);
    const PropertyValue dictionary = displays.registry.gammaCurveDictionary();
    for ([[maybe_unused]] auto _ : state) {
        displays.registry.adoptGammaCurveDictionary(dictionary, nullptr);
    }
}
BENCHMARK(adoptAllScreens)->Name("dictionary/25displays/adopt");

void writeList(benchmark::State& state) {
    const PropertyValue dictionary = allScreens();
    for ([[maybe_unused]] auto _ : state) {
        const auto text = writePropertyList(dictionary);
        if (!text) {
            state.SkipWithError(text.error().sentence.c_str());
            break;
        }
        benchmark::DoNotOptimize(text->data());
    }
}
BENCHMARK(writeList)->Name("propertyList/25displays/write");

void readList(benchmark::State& state) {
    const auto text = writePropertyList(allScreens());
    if (!text) {
        state.SkipWithError(text.error().sentence.c_str());
        return;
    }
    const std::vector<std::uint8_t> bytes(text->begin(), text->end());
    for ([[maybe_unused]] auto _ : state) {
        const auto value = readPropertyList(bytes);
        if (!value || value->size() != storedDisplays) {
            state.SkipWithError("The property list is not read back.");
            break;
        }
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(readList)->Name("propertyList/25displays/read");

}  // namespace

}  // namespace tonquil
