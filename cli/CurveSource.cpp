// SPDX-License-Identifier: MIT
#include "cli/CurveSource.h"

#include <algorithm>

#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "settings/Settings.h"
#include "values/BoundedJson.h"

namespace tonquil {

namespace {

using Curves = std::variant<OneCurve, CurvesByDisplay>;

Result<Curves> curveFromText(const std::string& text) {
    const auto array = readBoundedJson(text);
    if (!array) {
        return problem("The curve cannot be read. " + array.error().sentence);
    }
    const bool areNumbers =
        array->is_array() && std::all_of(array->begin(), array->end(), [](const auto& element) {
            return floatValue(element).has_value();
        });
    if (!areNumbers) {
        return problem("A curve is an array of numbers, such as '[1,0,1,1,0,1,1,0,1,1,0,1,1]'.");
    }
    auto curve = TQExtendedGammaCurve::gammaCurveWithCompactArray(*array);
    if (!curve) {
        return problem("The curve's first number is its mode, which is 0 or 1.");
    }
    return OneCurve(std::move(curve));
}

Result<Curves> curvesFromRawTable(const RawTableSettings& raw, const std::string& file) {
    auto curve = KVTableGammaCurve::tableGammaCurveWithData(raw.bytes);
    if (!curve) {
        return problem(file + " is neither a settings file nor a raw table, which has 768 bytes.");
    }
    return OneCurve(std::move(curve));
}

Result<Curves> curvesFromFile(const std::string& file) {
    auto settings = readSettingsFile(file);
    if (!settings) {
        return tl::unexpected(std::move(settings.error()));
    }
    if (const auto* single = std::get_if<SingleDisplaySettings>(&*settings)) {
        return OneCurve(TQExtendedGammaCurve::gammaCurveWithDictionary(single->curve));
    }
    if (auto* multi = std::get_if<MultiDisplaySettings>(&*settings)) {
        if (!multi->screens.is_object() || multi->screens.empty()) {
            return problem(file + " is for several displays but names none.");
        }
        return CurvesByDisplay{std::move(multi->screens)};
    }
    return curvesFromRawTable(std::get<RawTableSettings>(*settings), file);
}

}  // namespace

Result<Curves> readCurves(const Arguments& arguments) {
    return arguments.curve ? curveFromText(*arguments.curve) : curvesFromFile(*arguments.file);
}

}  // namespace tonquil
