// SPDX-License-Identifier: MIT
#include "screens/TransferFormulaFit.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tonquil {
namespace {

TEST(TransferFormulaFit, FindsTheFormulaThatATableWasMadeFrom) {
    const TransferFormula formula{
        .red = {0, 1, 2.2F}, .green = {0.1F, 0.85F, 0.6F}, .blue = {0.9F, 0.2F, 1}};
    const TransferFormula fitted = fitTransferFormula(tableFromFormula(formula), 256);
    const auto expectNear = [](const ChannelFormula& actual, const ChannelFormula& expected) {
        EXPECT_NEAR(actual.minimum, expected.minimum, 1e-6F);
        EXPECT_NEAR(actual.maximum, expected.maximum, 1e-6F);
        EXPECT_NEAR(actual.exponent, expected.exponent, 1e-4F);
    };
    expectNear(fitted.red, formula.red);
    expectNear(fitted.green, formula.green);
    expectNear(fitted.blue, formula.blue);
}

TEST(TransferFormulaFit, MakesTheBestOfTablesThatAreNoPowerLaw) {
    GammaTable flat;
    flat.levels.fill(0.5F);
    EXPECT_EQ(fitTransferFormula(flat, 256).red, (ChannelFormula{0.5F, 0.5F, 1}));
    EXPECT_EQ(fitTransferFormula(flat, 0).green, (ChannelFormula{0, 1, 1}));
    GammaTable dark;
    std::ranges::fill(dark.channel(1), 0.0F);
    dark.channel(1)[255] = 1;
    EXPECT_EQ(fitTransferFormula(dark, 256).green, (ChannelFormula{0, 1, 1}))
        << "levels of 0 have no logarithm and do not count";
}

}  // namespace
}  // namespace tonquil
