// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "model/KVGammaCurve.h"

namespace tonquil {

/// The curve that users edit: three points per channel under three master corrections.
///
/// A display gets the flat curve, with the masters folded into the points. The class stores any
/// value it is given; values that cause a division by zero give infinities or NaN, which are kept.
class TQExtendedGammaCurve : public KVGammaCurve {
 public:
    /// The master corrections: a lift for all channels, an offset of their exponents, a factor on
    /// their white levels.
    struct Masters {
        float black = 0;
        float middle = 1;
        float white = 1;
    };

    /// The neutral curve, over the base table.
    TQExtendedGammaCurve();
    TQExtendedGammaCurve(Masters masters, PointPointer blackPoint, PointPointer middlePoint,
                         PointPointer whitePoint, std::int32_t blendingMode);
    /// Splits the points into masters and remainders; modifies the given point objects.
    TQExtendedGammaCurve(PointPointer blackPoint, PointPointer middlePoint, PointPointer whitePoint,
                         std::int32_t blendingMode);
    /// Reads every generation of the dictionary form. Only the oldest, which has no master values,
    /// is split.
    explicit TQExtendedGammaCurve(const nlohmann::json& dictionary);
    explicit TQExtendedGammaCurve(CurveScreen& screen);

    [[nodiscard]] static std::shared_ptr<TQExtendedGammaCurve> gammaCurveWithMasterBlack(
        float masterBlack, float masterMiddle, float masterWhite, PointPointer blackPoint,
        PointPointer middlePoint, PointPointer whitePoint, std::int32_t blendingMode);
    [[nodiscard]] static std::shared_ptr<TQExtendedGammaCurve> gammaCurveWithBlackPoint(
        PointPointer blackPoint, PointPointer middlePoint, PointPointer whitePoint,
        std::int32_t blendingMode);
    [[nodiscard]] static std::shared_ptr<TQExtendedGammaCurve> gammaCurveWithDictionary(
        const nlohmann::json& dictionary);
    [[nodiscard]] static std::shared_ptr<TQExtendedGammaCurve> gammaCurveWithScreen(
        CurveScreen& screen);
    /// Reads the compact form: mode, masters, then black, middle and white of red, green and blue.
    /// Missing values and values without a float value take their defaults; elements after the 13th
    /// are ignored. Null if `array` is not an array or its mode is neither 0 nor 1.
    [[nodiscard]] static std::shared_ptr<TQExtendedGammaCurve> gammaCurveWithCompactArray(
        const nlohmann::json& array);

    [[nodiscard]] float masterBlackCorrection() const override { return _masterBlackCorrection; }
    [[nodiscard]] float masterMiddleCorrection() const override { return _masterMiddleCorrection; }
    [[nodiscard]] float masterWhiteCorrection() const override { return _masterWhiteCorrection; }
    void setMasterBlackCorrection(float correction) { _masterBlackCorrection = correction; }
    void setMasterMiddleCorrection(float correction) { _masterMiddleCorrection = correction; }
    void setMasterWhiteCorrection(float correction) { _masterWhiteCorrection = correction; }

    /// The points with the masters folded in; each call creates a new object.
    [[nodiscard]] PointPointer flatBlackPoint() const;
    [[nodiscard]] PointPointer flatMiddlePoint() const;
    [[nodiscard]] PointPointer flatWhitePoint() const;
    [[nodiscard]] std::shared_ptr<KVGammaCurve> flatGammaCurve() const;

    void retriveFromScreen(CurveScreen& screen) override;
    /// Splits the points into master corrections and per-channel remainders that flatten to the
    /// same curve.
    void _equilibrateMaster();

    /// Writes the current generation together with the previous one, so that an older reader finds
    /// a curve that flattens to the same.
    [[nodiscard]] nlohmann::json gammaCurveDictionary() const override;
    [[nodiscard]] nlohmann::json gammaCurveCompactArray() const;

 protected:
    [[nodiscard]] CurveValues appliedValues() const override;

 private:
    struct StoredParts;
    [[nodiscard]] static StoredParts storedParts(const nlohmann::json& dictionary);
    explicit TQExtendedGammaCurve(StoredParts parts);

    float _masterBlackCorrection = 0;
    float _masterMiddleCorrection = 1;
    float _masterWhiteCorrection = 1;
};

}  // namespace tonquil
