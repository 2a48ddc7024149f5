// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>

#include "targets/ColorTargetLayout.h"
#include "targets/RampSteps.h"
#include "targets/TQColorPatternArea.h"
#include "targets/TQColorRamp.h"
#include "targets/TQColorSquare.h"
#include "targets/TQGrayscalePatternArea.h"

namespace tonquil {

/// Found by the framework when it tells of a difference.
static void PrintTo(const PatternFrame& frame, std::ostream* stream) {
    *stream << frame.x << ", " << frame.y << ", " << frame.width << " x " << frame.height;
}

namespace {

TEST(RampStepsTest, AreNarrowInTheMiddleAndWideAtTheEnds) {
    const std::array<int, 17> boundaries = {0,  10, 18, 24, 30, 35, 40, 45, 50,
                                            55, 60, 65, 70, 76, 82, 90, 100};
    for (int step = 0; step <= rampStepCount; ++step) {
        SCOPED_TRACE(step);
        const int boundary = boundaries.at(static_cast<std::size_t>(step));
        EXPECT_EQ(rampStepBoundary(step, 0, 100), boundary);
        EXPECT_EQ(rampStepBoundary(step, 1, 100), boundary + 1);
    }
    EXPECT_EQ(rampStepBoundary(8, 0, 3), 2) << "half a point is rounded up";
}

TEST(ColorTargetLayoutTest, RoundsItsUnitDownAndItsSquaresToFours) {
    struct Row {
        double width;
        double height;
        PatternFrame first;
    };
    // The units are 31 (of 31.97), 20 (of 20.95), 1 and 0.
    for (const Row& row : {Row{1023, 900, {62, 373, 155, 155}}, Row{1000, 461, {213, 181, 99, 99}},
                           Row{63, 44, {11, 19, 7, 7}}, Row{31, 21, {19, 11, -1, -1}}}) {
        SCOPED_TRACE(row.width);
        EXPECT_EQ(ColorTargetLayout::forSize(row.width, row.height).squareGray, row.first);
    }
}

TEST(ColorPatternAreaTest, PlacesItsPiecesWheneverItsSizeChanges) {
    TQColorPatternArea area;
    area.resize(400, 300);
    area.show();
    area.resize(1000, 700);
    EXPECT_EQ(area.squareGray()->geometry(), QRect(51, 272, 155, 155));
    EXPECT_EQ(area.squareRed()->geometry(), QRect(237, 272, 155, 155));
    EXPECT_EQ(area.squareGreen()->geometry(), QRect(423, 272, 155, 155));
    EXPECT_EQ(area.squareBlue()->geometry(), QRect(609, 272, 155, 155));
    EXPECT_EQ(area.squareBW()->geometry(), QRect(795, 272, 155, 155));
    EXPECT_EQ(area.rampColorSmooth()->geometry(), QRect(51, 39, 899, 93));
    EXPECT_EQ(area.rampGraySmooth()->geometry(), QRect(51, 163, 899, 78));
    EXPECT_EQ(area.rampGray()->geometry(), QRect(51, 458, 899, 78));
    EXPECT_EQ(area.rampColor()->geometry(), QRect(51, 567, 899, 93));
    for (const QSize tiny : {QSize(20, 10), QSize(1, 1), QSize(0, 0)}) {
        area.resize(tiny);
        EXPECT_TRUE(area.squareGray()->size().isEmpty());
    }
}

TEST(GrayscalePatternAreaTest, PlacesItsRampsWheneverItsSizeChanges) {
    TQGrayscalePatternArea area;
    area.show();
    area.resize(1000, 700);
    EXPECT_EQ(area.rampGrayFlipped()->geometry(), QRect(80, 73, 841, 174));
    EXPECT_EQ(area.rampGray()->geometry(), QRect(80, 450, 841, 174));
    EXPECT_TRUE(area.rampGrayFlipped()->isReversed());
    EXPECT_FALSE(area.rampGray()->isReversed());
}

}  // namespace
}  // namespace tonquil
