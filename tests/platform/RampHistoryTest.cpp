// SPDX-License-Identifier: MIT
#include "platform/ramp/RampHistory.h"

#include <gtest/gtest.h>

namespace tonquil {
namespace {

TEST(RampHistory, AnswersTheSystemRampWhileACorrectionIsOn) {
    const HardwareRamp correction(256);
    HardwareRamp system = HardwareRamp::straight(256);
    system.entries()[5] = 77;
    RampHistory history;
    EXPECT_EQ(history.uncorrected(correction), correction) << "nobody said that it is one";
    history.addCorrection(correction.fingerprint());
    EXPECT_EQ(history.uncorrected(correction), HardwareRamp::straight(256)) << "a guess";
    history.setSystemRamp(system);
    EXPECT_EQ(history.uncorrected(correction), system);
    EXPECT_EQ(history.uncorrected(HardwareRamp::straight(256)), HardwareRamp::straight(256));
    history.setSystemRamp(HardwareRamp::straight(1'024));
    EXPECT_EQ(history.uncorrected(correction).size(), 256U) << "another ramp's note is no use";
}

TEST(RampHistory, ForgetsTheOldestCorrections) {
    RampHistory history;
    for (std::uint64_t i = 0; i < RampHistory::mostCorrections; ++i) {
        history.addCorrection(i);
    }
    history.addCorrection(0);
    EXPECT_TRUE(history.isCorrection(1)) << "one that is known is not one more";
    history.addCorrection(1'000);
    EXPECT_FALSE(history.isCorrection(1));
    EXPECT_TRUE(history.isCorrection(0)) << "it was set again later";
    EXPECT_EQ(history.corrections().back(), 1'000U);
}

}  // namespace
}  // namespace tonquil
