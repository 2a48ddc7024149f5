// SPDX-License-Identifier: MIT
//
// Feeds any file: any curves in it must compute a table and survive storing and reading bit for
// bit.

#include "settings/Settings.h"

#include "Require.h"
#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"

namespace {

using namespace tonquil;

void use(const PropertyValue& dictionary) {
    const auto curve = TQExtendedGammaCurve::gammaCurveWithDictionary(dictionary);
    require(curve->blendingMode() == 0 || curve->blendingMode() == 1);
    GammaTable table;
    curve->flatGammaCurve()->_applyGammaValues(table, 256);
    const auto again =
        TQExtendedGammaCurve::gammaCurveWithDictionary(curve->gammaCurveDictionary());
    require(again->gammaCurveCompactArray().dump() == curve->gammaCurveCompactArray().dump());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Result<Settings> settings = readSettings({data, data + size});
    if (!settings) {
        require(!settings.error().sentence.empty());
    } else if (const auto* single = std::get_if<SingleDisplaySettings>(&*settings)) {
        use(single->curve);
    } else if (const auto* multi = std::get_if<MultiDisplaySettings>(&*settings)) {
        for (const auto& screen : multi->screens) {
            use(screen);
        }
    } else if (const auto* calibration = std::get_if<CalibrationSettings>(&*settings)) {
        const auto stored = KVTableGammaCurve(calibration->table).gammaCurveDictionary();
        require(haveSameBits(KVTableGammaCurve::tableGammaCurveWithDictionary(stored)->table(),
                             calibration->table));
    } else {
        const auto& raw = std::get<RawTableSettings>(*settings);
        require(raw.bytes.size() == size);
        require((KVTableGammaCurve::tableGammaCurveWithData(raw.bytes) != nullptr) ==
                (size >= KVTableGammaCurve::dataSize));
    }
    return 0;
}
