// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/CurveSource.h"
#include "cli/TableText.h"
#include "files/BoundedFile.h"
#include "model/ComputedTable.h"
#include "model/CurveScreen.h"

namespace tonquil {

namespace {

/// A screen without hardware: captures the table that a curve would set on a real one.
class TableScreen : public CurveScreen {
 public:
    explicit TableScreen(const BaseGamma& base) : _base(base) {}

    [[nodiscard]] const GammaTable& table() const { return _table; }

    [[nodiscard]] const BaseGamma& baseGamma() const override { return _base; }
    [[nodiscard]] ComputedTable& computedTable() override { return _computed; }
    void setTransferTable(const GammaTable& table) override { _table = table; }
    std::uint32_t getTransferTable(GammaTable& table) const override {
        table = _base.table;
        return _base.sampleCount;
    }
    void setTransferFormula(const TransferFormula&) override {}
    [[nodiscard]] TransferFormula getTransferFormula() const override { return {}; }

 private:
    BaseGamma _base;
    GammaTable _table;
    ComputedTable _computed;
};

/// i / (n - 1), rounded once.
BaseGamma straightBase(std::uint32_t sampleCount) {
    BaseGamma base{.table = {}, .sampleCount = sampleCount};
    for (std::size_t c = 0; c < GammaTable::channelCount; ++c) {
        for (std::uint32_t i = 1; i < sampleCount; ++i) {
            base.table.channel(c)[i] = static_cast<float>(i) / static_cast<float>(sampleCount - 1);
        }
    }
    return base;
}

Result<BaseGamma> baseFor(const Arguments& arguments) {
    if (!arguments.base) {
        return straightBase(arguments.samples);
    }
    constexpr std::size_t mostBytes = std::size_t{64} * 1024;
    const auto bytes = readBoundedFile(*arguments.base, mostBytes);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    return readTable(std::string(bytes->begin(), bytes->end()), arguments.samples);
}

}  // namespace

Result<void> runTable(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto curve = readOneCurve(arguments);
    if (!curve) {
        return tl::unexpected(curve.error());
    }
    const auto base = baseFor(arguments);
    if (!base) {
        return tl::unexpected(base.error());
    }
    TableScreen screen(*base);
    (*curve)->applyToScreen(screen);
    printTable(screen.table(), arguments.samples, environment.out);
    return {};
}

}  // namespace tonquil
