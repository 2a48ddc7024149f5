// SPDX-License-Identifier: MIT
#include "model/KVGammaCurve.h"

#include <utility>

#include "model/ComputedTable.h"
#include "model/CurveScreen.h"
#include "model/SystemCalibration.h"
#include "model/TableComputation.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

using PointPointer = KVGammaCurve::PointPointer;

PointPointer orNeutral(PointPointer point, float neutral) {
    return point ? std::move(point) : KVGammaPoint::gammaPointWithRed(neutral, neutral, neutral);
}

}  // namespace

KVGammaCurve::KVGammaCurve() : KVGammaCurve(nullptr, nullptr, nullptr, KVBlendingModeBaseTable) {}

KVGammaCurve::KVGammaCurve(PointPointer blackPoint, PointPointer middlePoint,
                           PointPointer whitePoint, std::int32_t blendingMode)
    : _blackPoint(orNeutral(std::move(blackPoint), 0)),
      _middlePoint(orNeutral(std::move(middlePoint), 1)),
      _whitePoint(orNeutral(std::move(whitePoint), 1)),
      _blendingMode(blendingMode) {}

KVGammaCurve::KVGammaCurve(const PropertyValue& dictionary)
    : KVGammaCurve(KVGammaPoint::gammaPointEntry(dictionary, "BlackPoint"),
                   KVGammaPoint::gammaPointEntry(dictionary, "MiddlePoint"),
                   KVGammaPoint::gammaPointEntry(dictionary, "WhitePoint"),
                   blendingModeFromDictionary(dictionary)) {}

KVGammaCurve::KVGammaCurve(CurveScreen& screen) : KVGammaCurve() {
    KVGammaCurve::retriveFromScreen(screen);
}

std::shared_ptr<KVGammaCurve> KVGammaCurve::gammaCurveWithBlackPoint(PointPointer blackPoint,
                                                                     PointPointer middlePoint,
                                                                     PointPointer whitePoint,
                                                                     std::int32_t blendingMode) {
    return std::make_shared<KVGammaCurve>(std::move(blackPoint), std::move(middlePoint),
                                          std::move(whitePoint), blendingMode);
}

std::shared_ptr<KVGammaCurve> KVGammaCurve::gammaCurveWithDictionary(
    const PropertyValue& dictionary) {
    return std::make_shared<KVGammaCurve>(dictionary);
}

std::shared_ptr<KVGammaCurve> KVGammaCurve::gammaCurveWithScreen(CurveScreen& screen) {
    return std::make_shared<KVGammaCurve>(screen);
}

std::int32_t KVGammaCurve::blendingModeFromDictionary(const PropertyValue& dictionary) {
    const PropertyValue* mode = entry(dictionary, "BlendingMode");
    if (mode == nullptr || !isNumber(*mode)) {
        return KVBlendingModeAbsolute;
    }
    return integerValue(*mode) == 0 ? KVBlendingModeAbsolute : KVBlendingModeBaseTable;
}

void KVGammaCurve::restoreAllGammaCurves(SystemCalibration& calibration) {
    calibration.restoreSystemCalibration();
}

CurveValues KVGammaCurve::values() const {
    return {
        .channels =
            {{{_blackPoint->redValue(), _middlePoint->redValue(), _whitePoint->redValue()},
              {_blackPoint->greenValue(), _middlePoint->greenValue(), _whitePoint->greenValue()},
              {_blackPoint->blueValue(), _middlePoint->blueValue(), _whitePoint->blueValue()}}},
        .blendingMode = _blendingMode};
}

void KVGammaCurve::_applyGammaValues(GammaTable& table, std::uint32_t sampleCount) const {
    computeTransferTable(values(), table, sampleCount);
}

void KVGammaCurve::applyToScreen(CurveScreen& screen) const {
    screen.setTransferTable(screen.computedTable().tableFor(appliedValues(), screen.baseGamma()));
}

void KVGammaCurve::retriveFromScreen(CurveScreen& screen) {
    if (_blendingMode == KVBlendingModeAbsolute) {
        _oldRetriveFromScreen(screen);
        return;
    }
    _blackPoint = orNeutral(nullptr, 0);
    _middlePoint = orNeutral(nullptr, 1);
    _whitePoint = orNeutral(nullptr, 1);
}

void KVGammaCurve::_oldApplyToScreen(CurveScreen& screen) const {
    screen.setTransferFormula(
        {.red = {_blackPoint->redValue(), _whitePoint->redValue(), _middlePoint->redValue()},
         .green = {_blackPoint->greenValue(), _whitePoint->greenValue(),
                   _middlePoint->greenValue()},
         .blue = {_blackPoint->blueValue(), _whitePoint->blueValue(), _middlePoint->blueValue()}});
}

void KVGammaCurve::_oldRetriveFromScreen(CurveScreen& screen) {
    const auto [red, green, blue] = screen.getTransferFormula();
    _blackPoint = KVGammaPoint::gammaPointWithRed(red.minimum, green.minimum, blue.minimum);
    _whitePoint = KVGammaPoint::gammaPointWithRed(red.maximum, green.maximum, blue.maximum);
    _middlePoint = KVGammaPoint::gammaPointWithRed(red.exponent, green.exponent, blue.exponent);
}

PropertyValue KVGammaCurve::gammaCurveDictionary() const {
    return {{"BlackPoint", _blackPoint->gammaPointDictionary()},
            {"MiddlePoint", _middlePoint->gammaPointDictionary()},
            {"WhitePoint", _whitePoint->gammaPointDictionary()}};
}

}  // namespace tonquil
