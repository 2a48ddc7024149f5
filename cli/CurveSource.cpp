// SPDX-License-Identifier: MIT
#include "cli/CurveSource.h"

#include <algorithm>

#include "model/KVTableGammaCurve.h"
#include "model/StoredCurve.h"
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
        return problem(file +
                       " is neither a settings file, nor an ICC profile or .cal file, nor a raw "
                       "table, which has 768 bytes.");
    }
    return OneCurve(std::move(curve));
}

Result<Curves> curvesFromFile(const std::string& file) {
    auto settings = readSettingsFile(file);
    if (!settings) {
        return tl::unexpected(std::move(settings.error()));
    }
    if (const auto* single = std::get_if<SingleDisplaySettings>(&*settings)) {
        return curveWithDictionary(single->curve);
    }
    if (const auto* calibration = std::get_if<CalibrationSettings>(&*settings)) {
        return OneCurve(std::make_shared<KVTableGammaCurve>(calibration->table));
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

Result<OneCurve> readOneCurve(const Arguments& arguments) {
    auto curves = readCurves(arguments);
    if (!curves) {
        return tl::unexpected(std::move(curves.error()));
    }
    if (auto* curve = std::get_if<OneCurve>(&*curves)) {
        if (!arguments.displays.empty()) {
            return problem("There is one curve only, so --display has nothing to choose from.");
        }
        return std::move(*curve);
    }
    const PropertyValue& screens = std::get<CurvesByDisplay>(*curves).screens;
    const bool isOnlyOne = arguments.displays.empty() && screens.size() == 1;
    if (!isOnlyOne && arguments.displays.size() != 1) {
        return problem(*arguments.file + " is for several displays; say which one by --display.");
    }
    const std::string& display = isOnlyOne ? screens.begin().key() : arguments.displays.front();
    const PropertyValue* dictionary = entry(screens, display);
    if (dictionary == nullptr || !dictionary->is_object()) {
        return problem(*arguments.file + " has no curve for " + display + ".");
    }
    return curveWithDictionary(*dictionary);
}

}  // namespace tonquil
