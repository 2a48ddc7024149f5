// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "model/GammaTable.h"
#include "model/TransferFormula.h"

namespace tonquil {

class ComputedTable;

/// The interface that a curve needs from the screen it is applied to or read from.
class CurveScreen {
 public:
    virtual ~CurveScreen() = default;

    /// The screen's own calibration; valid until it is read again.
    [[nodiscard]] virtual const BaseGamma& baseGamma() const = 0;
    /// The screen's cache of its last computed table.
    [[nodiscard]] virtual ComputedTable& computedTable() = 0;

    /// Puts a table of 256 levels per channel on the display.
    virtual void setTransferTable(const GammaTable& table) = 0;
    /// Reads the display's current table into the first slots of each channel, leaves the others
    /// unchanged, and returns how many it filled (0 if the display does not answer).
    virtual std::uint32_t getTransferTable(GammaTable& table) const = 0;
    virtual void setTransferFormula(const TransferFormula& formula) = 0;
    [[nodiscard]] virtual TransferFormula getTransferFormula() const = 0;
};

}  // namespace tonquil
