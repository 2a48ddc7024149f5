// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <lcms2.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <numeric>
#include <span>
#include <string>
#include <vector>

#include "tests/support/EdidBuilder.h"
#include "tests/support/IccBuilder.h"

namespace tonquil {
namespace {

TEST(EdidBuilder, PutsEachFieldWhereTheFormatHasIt) {
    const auto edid = buildEdid({.manufacturer = "DEL",
                                 .product = 0xA123,
                                 .serial = 0x01020304,
                                 .serialText = "AB-12",
                                 .name = "Thirteen chars and more",
                                 .widthCentimetres = 52,
                                 .heightCentimetres = 32});
    ASSERT_EQ(edid.size(), 128U);
    EXPECT_EQ(std::accumulate(edid.begin(), edid.end(), 0U) % 256U, 0U);
    const std::vector<std::uint8_t> identity(edid.begin() + 8, edid.begin() + 16);
    EXPECT_EQ(identity, (std::vector<std::uint8_t>{0x10, 0xAC, 0x23, 0xA1, 4, 3, 2, 1}));
    EXPECT_EQ(edid[21], 52);
    EXPECT_EQ(edid[22], 32);
    EXPECT_EQ(std::string(edid.begin() + 72, edid.begin() + 90),
              std::string("\0\0\0\xFF\0AB-12\n       ", 18));
    EXPECT_EQ(std::string(edid.begin() + 90, edid.begin() + 108),
              std::string("\0\0\0\xFC\0Thirteen char", 18));
}

// The curves of the tag as Little CMS reads them back; owned by the profile.
std::span<cmsToneCurve*> calibrationOf(void* profile) {
    auto** curves = static_cast<cmsToneCurve**>(cmsReadTag(profile, cmsSigVcgtTag));
    return {curves, curves == nullptr ? 0U : 3U};
}

using Profile = std::unique_ptr<void, cmsBool (*)(void*)>;

Profile opened(const std::vector<std::uint8_t>& bytes) {
    const auto size = static_cast<cmsUInt32Number>(bytes.size());
    return {cmsOpenProfileFromMem(bytes.data(), size), cmsCloseProfile};
}

TEST(IccBuilder, MakesProfilesWhoseCalibrationReadsBack) {
    Ramp table;
    for (std::uint32_t index = 0; index < 256; ++index) {
        table.red.push_back(static_cast<std::uint16_t>(index * 257));
        table.green.push_back(static_cast<std::uint16_t>(index * 200 + 7));
        table.blue.push_back(static_cast<std::uint16_t>(65535 - index * index));
    }
    const auto profile = opened(buildIccWithTable(table));
    ASSERT_NE(profile, nullptr);
    const auto curves = calibrationOf(profile.get());
    ASSERT_EQ(curves.size(), 3U);
    const auto entries = [](const cmsToneCurve* curve) {
        const auto* first = cmsGetToneCurveEstimatedTable(curve);
        return std::vector<std::uint16_t>(first,
                                          first + cmsGetToneCurveEstimatedTableEntries(curve));
    };
    EXPECT_EQ((Ramp{entries(curves[0]), entries(curves[1]), entries(curves[2])}), table);

    const auto formula =
        opened(buildIccWithFormula({{{1.0, 0.0, 1.0}, {2.0, 0.1, 0.9}, {0.5, 0.2, 0.8}}}));
    ASSERT_NE(formula, nullptr);
    const auto channels = calibrationOf(formula.get());
    ASSERT_EQ(channels.size(), 3U);
    EXPECT_NEAR(cmsEvalToneCurveFloat(channels[0], 0.25F), 0.25, 1e-4);
    EXPECT_NEAR(cmsEvalToneCurveFloat(channels[1], 0.25F), 0.1 + 0.8 * 0.0625, 1e-4);
    EXPECT_NEAR(cmsEvalToneCurveFloat(channels[2], 0.25F), 0.2 + 0.6 * 0.5, 1e-4);

    const auto bare = opened(buildIccWithoutCalibration());
    ASSERT_NE(bare, nullptr);
    EXPECT_TRUE(calibrationOf(bare.get()).empty());
}

}  // namespace
}  // namespace tonquil
