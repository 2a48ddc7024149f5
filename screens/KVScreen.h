// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/ComputedTable.h"
#include "model/CurveScreen.h"
#include "model/KVGammaCurve.h"
#include "screens/DisplayService.h"
#include "screens/PlatformScreen.h"
#include "screens/ReferenceID.h"

namespace tonquil {

/// One physical display: its identity, its own calibration (the base), its assigned curve and
/// whether a curve is applied as soon as it is assigned. If the registry cannot tell twins apart,
/// one screen stands for several displays.
///
/// The registry creates screens and keeps them as long as it lives, so a display that is unplugged
/// and comes back finds its curve. The display service must outlive them.
class KVScreen : public CurveScreen {
 public:
    using CurvePointer = std::shared_ptr<KVGammaCurve>;

    /// The main display.
    explicit KVScreen(DisplayService& service);
    /// Computes the reference ID and reads the base; no curve, auto-apply off.
    KVScreen(DisplayService& service, DisplayID directDisplayID);
    KVScreen(const KVScreen&) = delete;
    KVScreen& operator=(const KVScreen&) = delete;
    ~KVScreen() override = default;

    [[nodiscard]] DisplayID directDisplayID() const { return _directDisplayID; }
    /// Binds the screen to its display's new ID; everything else is unchanged.
    void _setDirectDisplayID(DisplayID display);
    /// All displays that it stands for.
    [[nodiscard]] std::vector<DisplayID> displayIDs() const;
    /// Further displays that get the same tables.
    void setOtherDisplayIDs(std::vector<DisplayID> displays) {
        _otherDisplayIDs = std::move(displays);
    }
    [[nodiscard]] const std::string& referenceID() const { return _referenceID.text; }
    /// The reference ID with the connector that the display is, or was last, plugged into.
    [[nodiscard]] std::string twinReferenceID() const;
    [[nodiscard]] bool isReferenceIDLocallyUnique() const { return _referenceID.isLocallyUnique; }
    /// The ID used by earlier settings: the display ID in decimal.
    [[nodiscard]] std::string oldReferenceID() const { return std::to_string(_directDisplayID); }
    /// The keys under which a settings file may hold its curve, most specific first.
    [[nodiscard]] std::array<std::string, 3> keys() const {
        return {twinReferenceID(), referenceID(), oldReferenceID()};
    }
    /// Whether `name` means this display for a user: its reference ID or a connector of it.
    [[nodiscard]] bool isNamed(std::string_view name) const;
    /// The platform screen of this display; null while there is none. Cached once found.
    [[nodiscard]] std::shared_ptr<const PlatformScreen> nsscreen();

    /// Reads the base again, so that it is the system's current calibration. A display that cannot
    /// be read keeps its old base.
    void readBaseGamma();
    /// Copies all 256 slots of each channel and returns how many of them the display filled.
    std::uint32_t getBaseGamma(GammaTable& table) const;

    /// Null until a curve is assigned.
    [[nodiscard]] const CurvePointer& gammaCurve() const { return _gammaCurve; }
    /// Assigns a curve, or none; with auto-apply on it is applied immediately.
    void setGammaCurve(CurvePointer curve);
    /// Applies the curve to the display; does nothing without one. Does not allocate.
    void applyGammaCurve();
    [[nodiscard]] bool autoApplyGamma() const { return _autoApplyGamma; }
    /// Switching it on also applies the curve.
    void setAutoApplyGamma(bool autoApplyGamma);
    void activateAutoApplyGamma() { setAutoApplyGamma(true); }
    void deactivateAutoApplyGamma() { setAutoApplyGamma(false); }
    /// Assigns a plain curve made from this screen.
    void retriveGammaCurve();
    /// Assigns an extended curve made from this screen: the neutral one over the base.
    void retriveExtendedGammaCurve();
    /// Assigns the curve that an all-screens dictionary holds under this screen's twin reference
    /// ID, else under its reference ID or old-style ID, whichever key sorts first; if it has none
    /// of them, the initial curve object if given.
    void adoptGammaCurveDictionary(const nlohmann::json& dictionary, CurvePointer initialCurve);

    [[nodiscard]] const BaseGamma& baseGamma() const override { return _baseGamma; }
    [[nodiscard]] ComputedTable& computedTable() override { return _computedTable; }
    void setTransferTable(const GammaTable& table) override;
    std::uint32_t getTransferTable(GammaTable& table) const override;
    void setTransferFormula(const TransferFormula& formula) override;
    [[nodiscard]] TransferFormula getTransferFormula() const override;

 private:
    DisplayService& _service;
    DisplayID _directDisplayID;
    std::vector<DisplayID> _otherDisplayIDs;
    std::string _connector;
    BaseGamma _baseGamma;
    CurvePointer _gammaCurve;
    bool _autoApplyGamma = false;
    ReferenceID _referenceID;
    std::shared_ptr<const PlatformScreen> _nsscreen;
    ComputedTable _computedTable;
};

}  // namespace tonquil
