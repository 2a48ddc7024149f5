// SPDX-License-Identifier: MIT
#include "model/TQExtendedGammaCurve.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "model/CurveScreen.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

using PointPointer = KVGammaCurve::PointPointer;

// Two stacked lifts: each closes its share of the distance to full white that the other left.
float flattenBlack(float master, float black) {
    return 1.0F - (1.0F - master) * (1.0F - black);
}
// Exponents add up as offsets from 1, the straight line.
float flattenMiddle(float master, float middle) {
    return (master + middle) - 1.0F;
}
float flattenWhite(float master, float white) {
    return master * white;
}

/// Replaces each value of a point by the result of `change`, red first.
template <typename Change>
void changeEach(KVGammaPoint& point, Change change) {
    point.setRedValue(change(point.redValue()));
    point.setGreenValue(change(point.greenValue()));
    point.setBlueValue(change(point.blueValue()));
}

template <typename Flatten>
PointPointer flattened(const KVGammaPoint& point, float master, Flatten flatten) {
    return KVGammaPoint::gammaPointWithRed(flatten(master, point.redValue()),
                                           flatten(master, point.greenValue()),
                                           flatten(master, point.blueValue()));
}

/// The number under `key`, or nothing if there is none; strings do not count here.
std::optional<float> numberEntry(const PropertyValue& dictionary, std::string_view key) {
    const PropertyValue* value = entry(dictionary, key);
    return value != nullptr && isNumber(*value) ? floatValue(*value) : std::nullopt;
}

}  // namespace

/// The contents of a curve dictionary of any generation.
struct TQExtendedGammaCurve::StoredParts {
    Masters masters;
    PointPointer black;
    PointPointer middle;
    PointPointer white;
    std::int32_t blendingMode = KVBlendingModeAbsolute;
    bool hasMasters = true;
};

TQExtendedGammaCurve::StoredParts TQExtendedGammaCurve::storedParts(
    const PropertyValue& dictionary) {
    const auto point = [&](std::string_view key) {
        return KVGammaPoint::gammaPointEntry(dictionary, key);
    };
    const std::int32_t mode = blendingModeFromDictionary(dictionary);

    const auto masterBlack = numberEntry(dictionary, "v4-MasterBlack");
    const auto masterMiddle = numberEntry(dictionary, "v4-MasterMiddle");
    const auto masterWhite = numberEntry(dictionary, "v4-MasterWhite");
    if (masterBlack && masterMiddle && masterWhite) {
        return {.masters = {*masterBlack, *masterMiddle, *masterWhite},
                .black = point("v4-GammaPointBlack"),
                .middle = point("v4-GammaPointMiddle"),
                .white = point("v4-GammaPointWhite"),
                .blendingMode = mode};
    }
    const auto masterCorrection = numberEntry(dictionary, "MasterCorrection");
    // Without any master, the curve is split starting from masters of 0, like one made from points.
    return {.masters = masterCorrection ? Masters{0, *masterCorrection, 1} : Masters{0, 0, 0},
            .black = point("BlackPoint"),
            .middle = point("MiddlePoint"),
            .white = point("WhitePoint"),
            .blendingMode = mode,
            .hasMasters = masterCorrection.has_value()};
}

TQExtendedGammaCurve::TQExtendedGammaCurve() = default;

TQExtendedGammaCurve::TQExtendedGammaCurve(Masters masters, PointPointer blackPoint,
                                           PointPointer middlePoint, PointPointer whitePoint,
                                           std::int32_t blendingMode)
    : KVGammaCurve(std::move(blackPoint), std::move(middlePoint), std::move(whitePoint),
                   blendingMode),
      _masterBlackCorrection(masters.black),
      _masterMiddleCorrection(masters.middle),
      _masterWhiteCorrection(masters.white) {}

TQExtendedGammaCurve::TQExtendedGammaCurve(PointPointer blackPoint, PointPointer middlePoint,
                                           PointPointer whitePoint, std::int32_t blendingMode)
    : TQExtendedGammaCurve(Masters{.black = 0, .middle = 0, .white = 0}, std::move(blackPoint),
                           std::move(middlePoint), std::move(whitePoint), blendingMode) {
    _equilibrateMaster();
}

TQExtendedGammaCurve::TQExtendedGammaCurve(const PropertyValue& dictionary)
    : TQExtendedGammaCurve(storedParts(dictionary)) {}

TQExtendedGammaCurve::TQExtendedGammaCurve(StoredParts parts)
    : TQExtendedGammaCurve(parts.masters, std::move(parts.black), std::move(parts.middle),
                           std::move(parts.white), parts.blendingMode) {
    if (!parts.hasMasters) {
        _equilibrateMaster();
    }
}

TQExtendedGammaCurve::TQExtendedGammaCurve(CurveScreen& screen) {
    TQExtendedGammaCurve::retriveFromScreen(screen);
}

std::shared_ptr<TQExtendedGammaCurve> TQExtendedGammaCurve::gammaCurveWithMasterBlack(
    float masterBlack, float masterMiddle, float masterWhite, PointPointer blackPoint,
    PointPointer middlePoint, PointPointer whitePoint, std::int32_t blendingMode) {
    return std::make_shared<TQExtendedGammaCurve>(
        Masters{.black = masterBlack, .middle = masterMiddle, .white = masterWhite},
        std::move(blackPoint), std::move(middlePoint), std::move(whitePoint), blendingMode);
}

std::shared_ptr<TQExtendedGammaCurve> TQExtendedGammaCurve::gammaCurveWithBlackPoint(
    PointPointer blackPoint, PointPointer middlePoint, PointPointer whitePoint,
    std::int32_t blendingMode) {
    return std::make_shared<TQExtendedGammaCurve>(std::move(blackPoint), std::move(middlePoint),
                                                  std::move(whitePoint), blendingMode);
}

std::shared_ptr<TQExtendedGammaCurve> TQExtendedGammaCurve::gammaCurveWithDictionary(
    const PropertyValue& dictionary) {
    return std::make_shared<TQExtendedGammaCurve>(dictionary);
}

std::shared_ptr<TQExtendedGammaCurve> TQExtendedGammaCurve::gammaCurveWithScreen(
    CurveScreen& screen) {
    return std::make_shared<TQExtendedGammaCurve>(screen);
}

std::shared_ptr<TQExtendedGammaCurve> TQExtendedGammaCurve::gammaCurveWithCompactArray(
    const PropertyValue& array) {
    if (!array.is_array()) {
        return nullptr;
    }
    std::array<float, 13> values{1, 0, 1, 1, 0, 1, 1, 0, 1, 1, 0, 1, 1};
    for (std::size_t i = 0; i < std::min(values.size(), array.size()); ++i) {
        values[i] = floatValue(array[i]).value_or(values[i]);
    }
    // The mode is truncated towards zero, so everything between -1 and 2 is 0 or 1; the comparison
    // also refuses NaN.
    if (!(values[0] > -1.0F && values[0] < 2.0F)) {
        return nullptr;
    }
    return gammaCurveWithMasterBlack(
        values[1], values[2], values[3],
        KVGammaPoint::gammaPointWithRed(values[4], values[7], values[10]),
        KVGammaPoint::gammaPointWithRed(values[5], values[8], values[11]),
        KVGammaPoint::gammaPointWithRed(values[6], values[9], values[12]),
        static_cast<std::int32_t>(values[0]));
}

PointPointer TQExtendedGammaCurve::flatBlackPoint() const {
    return flattened(*blackPoint(), _masterBlackCorrection, flattenBlack);
}

PointPointer TQExtendedGammaCurve::flatMiddlePoint() const {
    return flattened(*middlePoint(), _masterMiddleCorrection, flattenMiddle);
}

PointPointer TQExtendedGammaCurve::flatWhitePoint() const {
    return flattened(*whitePoint(), _masterWhiteCorrection, flattenWhite);
}

std::shared_ptr<KVGammaCurve> TQExtendedGammaCurve::flatGammaCurve() const {
    return KVGammaCurve::gammaCurveWithBlackPoint(flatBlackPoint(), flatMiddlePoint(),
                                                  flatWhitePoint(), blendingMode());
}

// The same numbers as flatGammaCurve, but without creating objects: this runs on every
// re-application.
CurveValues TQExtendedGammaCurve::appliedValues() const {
    CurveValues flat = values();
    for (ChannelCurve& channel : flat.channels) {
        channel.black = flattenBlack(_masterBlackCorrection, channel.black);
        channel.middle = flattenMiddle(_masterMiddleCorrection, channel.middle);
        channel.white = flattenWhite(_masterWhiteCorrection, channel.white);
    }
    return flat;
}

void TQExtendedGammaCurve::retriveFromScreen(CurveScreen& screen) {
    KVGammaCurve::retriveFromScreen(screen);
    _equilibrateMaster();
}

void TQExtendedGammaCurve::_equilibrateMaster() {
    // The order matters: each step reads what the previous ones left. The new master black is the
    // lowest *flat* black, but the remainders are computed from the raw blacks; so an old master
    // black other than 0 leaves negative remainders, on purpose. fmin and fmax ignore NaN.
    const PointPointer flatBlack = flatBlackPoint();
    _masterBlackCorrection = std::fmin(std::fmin(flatBlack->redValue(), flatBlack->greenValue()),
                                       flatBlack->blueValue());
    changeEach(*blackPoint(), [master = _masterBlackCorrection](float black) {
        return 1.0F - (1.0F - black) / (1.0F - master);
    });

    const KVGammaPoint& middle = *middlePoint();
    _masterMiddleCorrection = (middle.redValue() + middle.greenValue() + middle.blueValue()) / 3.0F;
    changeEach(*middlePoint(), [master = _masterMiddleCorrection](float exponent) {
        return (exponent - master) + 1.0F;
    });

    const KVGammaPoint& white = *whitePoint();
    _masterWhiteCorrection =
        std::fmax(std::fmax(white.redValue(), white.greenValue()), white.blueValue());
    changeEach(*whitePoint(),
               [master = _masterWhiteCorrection](float level) { return level / master; });
}

PropertyValue TQExtendedGammaCurve::gammaCurveDictionary() const {
    return {{"BlendingMode", static_cast<std::uint32_t>(blendingMode())},
            {"v4-MasterBlack", singlePrecision(_masterBlackCorrection)},
            {"v4-MasterMiddle", singlePrecision(_masterMiddleCorrection)},
            {"v4-MasterWhite", singlePrecision(_masterWhiteCorrection)},
            {"v4-GammaPointBlack", blackPoint()->gammaPointDictionary()},
            {"v4-GammaPointMiddle", middlePoint()->gammaPointDictionary()},
            {"v4-GammaPointWhite", whitePoint()->gammaPointDictionary()},
            // The previous generation had one master, on the exponent: its black and white have
            // their masters folded in, its middle does not.
            {"MasterCorrection", singlePrecision(_masterMiddleCorrection)},
            {"BlackPoint", flatBlackPoint()->gammaPointDictionary()},
            {"MiddlePoint", middlePoint()->gammaPointDictionary()},
            {"WhitePoint", flatWhitePoint()->gammaPointDictionary()}};
}

PropertyValue TQExtendedGammaCurve::gammaCurveCompactArray() const {
    PropertyValue array = {
        static_cast<std::uint32_t>(blendingMode()), singlePrecision(_masterBlackCorrection),
        singlePrecision(_masterMiddleCorrection), singlePrecision(_masterWhiteCorrection)};
    for (const ChannelCurve& channel : values().channels) {
        array.push_back(singlePrecision(channel.black));
        array.push_back(singlePrecision(channel.middle));
        array.push_back(singlePrecision(channel.white));
    }
    return array;
}

}  // namespace tonquil
