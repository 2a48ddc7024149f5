// SPDX-License-Identifier: MIT
#pragma once

#include "model/ComputedTable.h"
#include "model/CurveScreen.h"

namespace tonquil {

/// A screen without hardware: captures the table that a curve would produce over a base.
class TableCapture final : public CurveScreen {
 public:
    explicit TableCapture(const BaseGamma& base) : _base(base) {}

    [[nodiscard]] const GammaTable& table() const { return _table; }

    [[nodiscard]] const BaseGamma& baseGamma() const override { return _base; }
    [[nodiscard]] ComputedTable& computedTable() override { return _computedTable; }
    void setTransferTable(const GammaTable& table) override { _table = table; }
    std::uint32_t getTransferTable(GammaTable& table) const override {
        table = _base.table;
        return _base.sampleCount;
    }
    /// Plotting never uses a formula.
    void setTransferFormula(const TransferFormula& /*formula*/) override {}
    [[nodiscard]] TransferFormula getTransferFormula() const override { return {}; }

 private:
    const BaseGamma& _base;
    GammaTable _table;
    ComputedTable _computedTable;
};

}  // namespace tonquil
