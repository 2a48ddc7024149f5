// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>

#include "model/CurveValues.h"
#include "model/GammaTable.h"
#include "model/KVGammaPoint.h"

namespace tonquil {

class CurveScreen;
class SystemCalibration;

/// How a curve combines with the display's own calibration.
enum KVBlendingMode : std::int32_t {
    KVBlendingModeAbsolute = 0,   ///< The curve alone makes the table.
    KVBlendingModeBaseTable = 1,  ///< The curve chooses where to sample the display's base table.
};

/// A correction curve: a black, a middle and a white point and a blending mode.
///
/// Black and white are the output levels at input 0 and 1, middle is the exponent on the input. The
/// points are shared with every caller that asked for them, and one curve may serve several
/// screens. Nothing is clamped.
class KVGammaCurve {
 public:
    using PointPointer = std::shared_ptr<KVGammaPoint>;

    /// The neutral curve: black 0, middle 1, white 1, over the base table.
    KVGammaCurve();
    /// Keeps the given point objects; a null one becomes neutral. Stores any mode.
    KVGammaCurve(PointPointer blackPoint, PointPointer middlePoint, PointPointer whitePoint,
                 std::int32_t blendingMode);
    /// Reads a plain curve dictionary; missing values take their defaults (for the mode: absolute).
    explicit KVGammaCurve(const nlohmann::json& dictionary);
    /// The neutral curve, then updated by `retriveFromScreen`.
    explicit KVGammaCurve(CurveScreen& screen);
    KVGammaCurve(const KVGammaCurve&) = delete;
    KVGammaCurve& operator=(const KVGammaCurve&) = delete;
    virtual ~KVGammaCurve() = default;

    [[nodiscard]] static std::shared_ptr<KVGammaCurve> gammaCurveWithBlackPoint(
        PointPointer blackPoint, PointPointer middlePoint, PointPointer whitePoint,
        std::int32_t blendingMode);
    [[nodiscard]] static std::shared_ptr<KVGammaCurve> gammaCurveWithDictionary(
        const nlohmann::json& dictionary);
    [[nodiscard]] static std::shared_ptr<KVGammaCurve> gammaCurveWithScreen(CurveScreen& screen);

    /// The mode in any curve dictionary: absolute if it is missing or not a number, base table for
    /// any number except 0.
    [[nodiscard]] static std::int32_t blendingModeFromDictionary(const nlohmann::json& dictionary);
    /// Restores the system calibration of every display.
    static void restoreAllGammaCurves(SystemCalibration& calibration);

    [[nodiscard]] const PointPointer& blackPoint() const { return _blackPoint; }
    [[nodiscard]] const PointPointer& middlePoint() const { return _middlePoint; }
    [[nodiscard]] const PointPointer& whitePoint() const { return _whitePoint; }
    [[nodiscard]] std::int32_t blendingMode() const { return _blendingMode; }
    void setBlendingMode(std::int32_t blendingMode) { _blendingMode = blendingMode; }

    /// A plain curve has no master corrections; these are the neutral 0, 1 and 1.
    [[nodiscard]] virtual float masterBlackCorrection() const { return 0; }
    [[nodiscard]] virtual float masterMiddleCorrection() const { return 1; }
    [[nodiscard]] virtual float masterWhiteCorrection() const { return 1; }

    /// Computes the result of this curve's points over the base in `table`, in place; see
    /// `computeTransferTable`.
    void _applyGammaValues(GammaTable& table, std::uint32_t sampleCount) const;
    /// Sets the display's table from this curve. Computes only what changed since the last call for
    /// this screen, and does not allocate.
    virtual void applyToScreen(CurveScreen& screen) const;
    /// Replaces the points by the display's transfer formula (absolute) or by the neutral points
    /// (any other mode: the display's table is the base, which the neutral curve reproduces).
    virtual void retriveFromScreen(CurveScreen& screen);
    /// Sets the display's transfer formula from the points, instead of a table.
    void _oldApplyToScreen(CurveScreen& screen) const;
    void _oldRetriveFromScreen(CurveScreen& screen);

    /// The three points. The plain form does not include the mode.
    [[nodiscard]] virtual nlohmann::json gammaCurveDictionary() const;

 protected:
    /// The values that `applyToScreen` puts on a display.
    [[nodiscard]] virtual CurveValues appliedValues() const { return values(); }
    /// The current values of the points.
    [[nodiscard]] CurveValues values() const;

 private:
    PointPointer _blackPoint;
    PointPointer _middlePoint;
    PointPointer _whitePoint;
    std::int32_t _blendingMode = KVBlendingModeBaseTable;
};

}  // namespace tonquil
