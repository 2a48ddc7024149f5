// SPDX-License-Identifier: MIT
#pragma once

#include "model/ComputedTable.h"
#include "model/CurveScreen.h"

namespace tonquil {

/// A screen in memory that a test can set up and inspect.
class FakeScreen : public CurveScreen {
 public:
    BaseGamma base;
    GammaTable shown;
    TransferFormula formula;
    ComputedTable computed;

    [[nodiscard]] const BaseGamma& baseGamma() const override { return base; }
    [[nodiscard]] ComputedTable& computedTable() override { return computed; }
    void setTransferTable(const GammaTable& table) override { shown = table; }
    std::uint32_t getTransferTable(GammaTable& table) const override {
        table = shown;
        return 256;
    }
    void setTransferFormula(const TransferFormula& wanted) override { formula = wanted; }
    [[nodiscard]] TransferFormula getTransferFormula() const override { return formula; }
};

}  // namespace tonquil
