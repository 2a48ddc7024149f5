// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>

#include "targets/ColorTargetLayout.h"
#include "targets/TQColorPatternArea.h"
#include "targets/TQColorRamp.h"
#include "targets/TQColorSquare.h"
#include "targets/TQGrayscalePatternArea.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

const QRgb neverDrawn = qRgb(255, 0, 255);

QImage rendered(QWidget& view, double ratio) {
    QImage image(static_cast<int>(std::lround(view.width() * ratio)),
                 static_cast<int>(std::lround(view.height() * ratio)), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(neverDrawn);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QRgb gray(int level) {
    return qRgb(level, level, level);
}

/// Of every pixel (FNV-1a), in every size and at every ratio of pixels to points.
std::uint32_t checksum(QWidget& view) {
    std::uint32_t sum = 0x811C9DC5;
    for (const QSize size : {QSize(1, 1), QSize(2, 2), QSize(3, 3), QSize(5, 4), QSize(17, 8),
                             QSize(36, 34), QSize(102, 33), QSize(3840, 11)}) {
        view.resize(size);
        for (const double ratio : {1.0, 1.5, 2.0}) {
            const QImage image = rendered(view, ratio);
            for (int i = 0; i < image.height() * image.width(); ++i) {
                sum = (sum ^ image.pixel(i % image.width(), i / image.width())) * 0x01000193;
            }
        }
    }
    return sum;
}

// The checksums were taken from images identical, pixel by pixel, to plain arithmetic on where each
// pixel's middle lies. If you change a pattern on purpose, look at it first.
TEST(PatternPixels, MatchChecksumsAtAllSizesAndRatios) {
    TQColorRamp ramp;
    std::vector<std::uint32_t> ramps;
    for (std::uint32_t variant = 0; variant < 5; ++variant) {
        for (const bool isReversed : {false, true}) {
            ramp.setVariant(variant);
            ramp.setReversed(isReversed);
            ramps.push_back(checksum(ramp));
        }
    }
    EXPECT_THAT(ramps, ElementsAre(4034550340, 827406235, 3956062759, 360208144, 124092212,
                                   280500260, 2251635866, 1238380009, 727269035, 727269035));
    TQColorSquare square;
    std::vector<std::uint32_t> squares;
    for (std::uint32_t variant = 0; variant < 6; ++variant) {
        square.setVariant(variant);
        squares.push_back(checksum(square));
    }
    EXPECT_THAT(squares,
                ElementsAre(1180841772, 4008145596, 1927073468, 4245140780, 573088195, 573088195));
}

TEST(ColorPatternAreaTest, PlacesPiecesOnResize) {
    TQColorPatternArea area;
    area.resize(400, 300);
    area.show();
    area.resize(1000, 700);
    EXPECT_EQ(area.squareGray()->geometry(), QRect(51, 272, 155, 155));
    EXPECT_EQ(area.squareBW()->geometry(), QRect(795, 272, 155, 155));
    EXPECT_EQ(area.rampColorSmooth()->geometry(), QRect(51, 39, 899, 93));
    EXPECT_EQ(area.rampGray()->geometry(), QRect(51, 458, 899, 78));
    // The unit is rounded down, from 20.95, and the square to fours.
    EXPECT_EQ(ColorTargetLayout::forSize(1000, 461).squareGray, (PatternFrame{213, 181, 99, 99}));
    area.resize(0, 0);
    EXPECT_TRUE(area.squareGray()->size().isEmpty());
    // Here every other square's whole points lie between pixels: its lines must stay sharp.
    area.resize(1001, 701);
    const double ratio = 1.25;
    const QImage image = rendered(area, ratio);
    for (const TQColorSquare* square : {area.squareGray(), area.squareRed()}) {
        const QRect frame = square->geometry();
        const int x = static_cast<int>((frame.x() + frame.width() * 0.25) * ratio);
        const int top = static_cast<int>((frame.y() + 4) * ratio);
        for (int y = top; y < top + frame.height() * 0.4 * ratio; ++y) {
            ASSERT_NE(image.pixel(x, y) == gray(0), image.pixel(x, y + 1) == gray(0)) << y;
        }
    }
}

TEST(GrayscalePatternAreaTest, ShowsMiddleGraysOnNearBlack) {
    TQGrayscalePatternArea area;
    area.resize(1000, 700);
    // The boxes reach from 312.25 to 384.75 points below the upper edge.
    constexpr double ratio = 1.5;
    constexpr int top = 468;
    constexpr int bottom = 577;
    const QImage image = rendered(area, ratio);
    const auto at = [&](double x, int y) { return image.pixel(static_cast<int>(x * ratio), y); };
    double x = 80;
    for (const int level : {102, 115, 128, 140, 153}) {
        EXPECT_EQ(at(x + 0.1, top), gray(level));
        EXPECT_EQ(at(x + 144.9, bottom - 1), gray(level));
        EXPECT_EQ(at(x + 0.1, top - 1), gray(15));
        EXPECT_EQ(at(x + 144.9, bottom), gray(15));
        EXPECT_EQ(at(x - 0.9, top), gray(15));
        EXPECT_EQ(at(x + 145.7, top), gray(15));
        x += 174;
    }
    // White is on the left in the upper ramp, on the right in the lower one.
    EXPECT_EQ(at(90, 150), gray(255));
    EXPECT_EQ(at(90, 750), gray(0));
}

}  // namespace
}  // namespace tonquil
