// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/ui/Input.h"
#include "ui/CurvePlot.h"
#include "ui/theme/Theme.h"

namespace tonquil {
namespace {

using Samples = std::vector<float>;

class CurvePlotTest : public testing::Test {
 protected:
    CurvePlotTest() { plot.resize(240, 200); }

    void setCurves(const Samples& red, const Samples& green, const Samples& blue) {
        plot.setCurves({red, green, blue});
    }
    // Slightly rising lines cover some pixels entirely.
    bool shows(const QColor& colour) {
        const QImage picture = drawn(plot);
        for (int pixel = 0; pixel < 240 * 200; ++pixel) {
            if (isNear(picture.pixelColor(pixel % 240, pixel / 240), colour, 4)) {
                return true;
            }
        }
        return false;
    }

    CurvePlot plot;
};

TEST_F(CurvePlotTest, DrawsChannelColoursAndEqualCurvesInWhiteOrBlack) {
    for (const bool isDark : {true, false}) {
        SCOPED_TRACE(isDark);
        setAppearance(plot, {.isDark = isDark});
        const Theme& theme = themeOf(plot);
        const QColor meeting = isDark ? Qt::white : Qt::black;
        setCurves({0.1F, 0.2F}, {0.4F, 0.5F}, {0.6F, 0.7F});
        EXPECT_TRUE(shows(theme.red));
        EXPECT_TRUE(shows(theme.green));
        EXPECT_TRUE(shows(theme.blue));
        EXPECT_FALSE(shows(meeting));
        setCurves({0.4F, 0.5F}, {0.4F, 0.5F}, {0.4F, 0.5F});
        EXPECT_TRUE(shows(meeting));
        EXPECT_FALSE(shows(theme.red));
    }
}

TEST_F(CurvePlotTest, IsSpokenAsWhatItShows) {
    setCurves({0.0F, 0.5F, 0.8F}, {0.1F, 0.1F}, {0.2F, 1.0F});
    const QString curves = QStringLiteral(
        "Output at input 0, 0.5 and 1. Red: 0.00, 0.50, 0.80. "
        "Green: 0.10, 0.10, 0.10. Blue: 0.20, 0.60, 1.00.");
    EXPECT_EQ(plot.spokenDescription(), curves);
    plot.setInForce(false);
    EXPECT_EQ(plot.spokenDescription(), QStringLiteral("The correction is off. ") + curves);
    plot.setMessage(QStringLiteral("No ramp."));
    EXPECT_EQ(plot.spokenDescription(), QStringLiteral("No ramp."));
}

}  // namespace
}  // namespace tonquil
