// SPDX-License-Identifier: MIT
// Every pixel of the patterns, against plain arithmetic on where the middle of that pixel lies.
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "targets/TQColorPatternArea.h"
#include "targets/TQColorRamp.h"
#include "targets/TQColorSquare.h"
#include "targets/TQGrayscalePatternArea.h"

namespace tonquil {
namespace {

const QRgb neverDrawn = qRgb(255, 0, 255);

QImage rendered(QWidget& view, double ratio) {
    QImage image(static_cast<int>(std::lround(view.width() * ratio)),
                 static_cast<int>(std::lround(view.height() * ratio)), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(neverDrawn);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// `scale * part / whole`, and `offset` quarters, to the nearest whole number.
int nearest(std::int64_t scale, double part, double whole, std::int64_t offset = 0) {
    const auto eighths = static_cast<std::int64_t>(8 * std::clamp(part, 0.0, whole));
    const auto all = static_cast<std::int64_t>(8 * whole);
    return static_cast<int>((2 * (4 * scale * eighths + offset * all) + 4 * all) / (8 * all));
}

QRgb gray(int level) {
    return qRgb(level, level, level);
}

/// A view, and one of its pixels: all in device pixels, `x` and `y` being the pixel's middle from
/// the lower left. An edge that goes through a middle leaves the pixel to what is below or left.
struct Spot {
    double x;
    double y;
    double ratio;
    double width;
    double height;

    [[nodiscard]] bool isWithin(double left, double bottom, double right, double top) const {
        return x > left && x <= right && y > bottom && y <= top;
    }
    [[nodiscard]] bool isInContent() const {
        return isWithin(ratio, ratio, width - ratio, height - ratio);
    }
    [[nodiscard]] QRgb border() const { return gray(nearest(51, height - y, height, 663)); }
};

int stepLevel(const Spot& spot, double fromLeft, bool isMirrored) {
    const double points = spot.width / spot.ratio - 2;
    for (int k = 0; k < 16; ++k) {
        const auto boundary = [&](int edge) {
            const double t = edge * 0.0625;
            const double position = 0.8 * t + 0.2 * (std::pow(2 * t - 1, 5) + 1) * 0.5;
            return (std::round(position * points) + 1) * spot.ratio;
        };
        // Turned around, the edge through a pixel's middle leaves it to the other side.
        const bool isIn = isMirrored ? fromLeft >= boundary(k) && fromLeft < boundary(k + 1)
                                     : fromLeft > boundary(k) && fromLeft <= boundary(k + 1);
        if (isIn) {
            return 17 * k;
        }
    }
    return -1;
}

QRgb expectedOfRamp(std::uint32_t variant, bool isReversed, const Spot& spot) {
    if (!spot.isInContent() || variant > 3) {
        return spot.border();
    }
    const double fromLeft = isReversed ? spot.width - spot.x : spot.x;
    const int level = variant < 2
                          ? stepLevel(spot, fromLeft, isReversed)
                          : nearest(255, fromLeft - spot.ratio, spot.width - 2 * spot.ratio);
    if (variant % 2 == 0) {
        return gray(level);
    }
    const double points = spot.height / spot.ratio - 2;
    const double third = std::ceil(points / 3) * spot.ratio;
    const double bottom = spot.ratio;
    const double top = spot.height - spot.ratio;
    const auto isBetween = [&](double from, double to) {
        return isReversed ? spot.isWithin(0, spot.height - to, spot.width, spot.height - from)
                          : spot.isWithin(0, from, spot.width, to);
    };
    if (isBetween(bottom, bottom + third)) {
        return qRgb(0, 0, level);
    }
    return isBetween(top - third, top) ? qRgb(level, 0, 0) : qRgb(0, level, 0);
}

QRgb expectedOfSquare(std::uint32_t variant, const Spot& spot) {
    if (!spot.isInContent()) {
        return spot.border();
    }
    constexpr std::array<QRgb, 6> masks = {0xFFFFFFFF, 0xFFFF0000, 0xFF00FF00,
                                           0xFF0000FF, 0xFF000000, 0xFF000000};
    const QRgb foreground = masks.at(variant);
    const QRgb background = variant > 3 ? gray(255) : gray(174) & foreground;
    const double middleX = spot.width / 2;
    const double middleY = spot.height / 2;
    const double halfHeight = middleY - spot.ratio;
    const bool isLowerRight = spot.x > middleX && spot.y <= middleY;
    const bool isUpperLeft = spot.x <= middleX && spot.y > middleY;
    if (!isLowerRight && !isUpperLeft) {
        return background;
    }
    // Counted in rows from the quarter's outer edge: the second, fourth… is black.
    const double rows = isLowerRight ? spot.y - 0.5 - std::round(spot.ratio)
                                     : std::round(spot.height - spot.ratio) - spot.y + 0.5;
    const auto row = static_cast<int>(rows);
    const bool isLine = row % 2 == (isLowerRight ? 1 : 0) && row < halfHeight;
    return isLine && variant != 4 ? gray(0) : foreground;
}

void expectEveryPixel(QWidget& view, double ratio,
                      const std::function<QRgb(const Spot&)>& expected) {
    const QImage image = rendered(view, ratio);
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            const Spot spot{column + 0.5, image.height() - row - 0.5, ratio, view.width() * ratio,
                            view.height() * ratio};
            const QRgb found = image.pixel(column, row);
            ASSERT_EQ(QColor(found).name().toStdString(),
                      QColor(expected(spot)).name().toStdString())
                << "column " << column << ", row " << row;
        }
    }
}

constexpr std::array<double, 3> ratios = {1, 1.5, 2};
constexpr std::array<QSize, 11> sizes = {
    QSize(1, 1),  QSize(2, 2),   QSize(3, 3),    QSize(4, 5),     QSize(5, 4),    QSize(7, 9),
    QSize(17, 8), QSize(36, 34), QSize(102, 33), QSize(155, 155), QSize(3840, 11)};

TEST(ColorRampTest, HasTheRightColourInEveryPixel) {
    TQColorRamp ramp;
    for (const QSize size : sizes) {
        ramp.resize(size);
        for (const double ratio : ratios) {
            for (std::uint32_t variant = 0; variant < 5; ++variant) {
                for (const bool isReversed : {false, true}) {
                    SCOPED_TRACE(testing::Message()
                                 << size.width() << " x " << size.height() << " at " << ratio
                                 << ", variant " << variant << (isReversed ? " reversed" : ""));
                    ramp.setVariant(variant);
                    ramp.setReversed(isReversed);
                    expectEveryPixel(ramp, ratio, [&](const Spot& spot) {
                        return expectedOfRamp(variant, isReversed, spot);
                    });
                }
            }
        }
    }
}

TEST(ColorSquareTest, HasTheRightColourInEveryPixel) {
    TQColorSquare square;
    for (const QSize size : sizes) {
        square.resize(size);
        for (const double ratio : ratios) {
            for (std::uint32_t variant = 0; variant < 6; ++variant) {
                SCOPED_TRACE(testing::Message() << size.width() << " x " << size.height() << " at "
                                                << ratio << ", variant " << variant);
                square.setVariant(variant);
                expectEveryPixel(square, ratio,
                                 [&](const Spot& spot) { return expectedOfSquare(variant, spot); });
            }
        }
    }
}

// Whole points lie between pixels here for every other square.
TEST(ColorPatternAreaTest, HasLinesOfOneDevicePixelWhereverASquareIs) {
    TQColorPatternArea area;
    for (const QSize size : {QSize(1000, 700), QSize(1001, 701), QSize(700, 503)}) {
        area.resize(size);
        for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            const QImage image = rendered(area, ratio);
            for (const TQColorSquare* square :
                 {area.squareGray(), area.squareRed(), area.squareGreen(), area.squareBlue()}) {
                SCOPED_TRACE(testing::Message() << size.width() << " at " << ratio);
                const QRect frame = square->geometry();
                const int x = static_cast<int>((frame.x() + frame.width() * 0.25) * ratio);
                const int top = static_cast<int>((frame.y() + 4) * ratio);
                for (int y = top; y < top + frame.height() * 0.4 * ratio; ++y) {
                    ASSERT_NE(image.pixel(x, y) == gray(0), image.pixel(x, y + 1) == gray(0)) << y;
                }
            }
        }
    }
}

TEST(GrayscalePatternAreaTest, HasGraysAroundTheMiddleOneOnNearlyBlack) {
    TQGrayscalePatternArea area;
    area.resize(1000, 700);
    struct Row {
        double ratio;
        int top;
        int bottom;
    };
    // The boxes reach from 312.25 to 384.75 points below the upper edge.
    for (const Row& row : {Row{1, 312, 385}, {1.5, 468, 577}, {2, 624, 769}}) {
        SCOPED_TRACE(row.ratio);
        const QImage image = rendered(area, row.ratio);
        const auto at = [&](double x, int y) {
            return image.pixel(static_cast<int>(x * row.ratio), y);
        };
        const std::array<int, 5> levels = {102, 115, 128, 140, 153};
        for (std::size_t box = 0; box < levels.size(); ++box) {
            const double x = 80 + 174 * static_cast<double>(box);
            EXPECT_EQ(at(x + 0.1, row.top), gray(levels.at(box)));
            EXPECT_EQ(at(x + 144.9, row.bottom - 1), gray(levels.at(box)));
            EXPECT_EQ(at(x + 0.1, row.top - 1), gray(15));
            EXPECT_EQ(at(x + 144.9, row.bottom), gray(15));
            EXPECT_EQ(at(x - 0.9, row.top), gray(15));
            EXPECT_EQ(at(x + 145.7, row.top), gray(15));
        }
        EXPECT_EQ(image.pixel(0, 0), gray(15));
        // White is at the left in the upper ramp, at the right in the lower one.
        const auto upper = static_cast<int>(100 * row.ratio);
        const auto lower = static_cast<int>(500 * row.ratio);
        EXPECT_EQ(at(90.0, upper), gray(255));
        EXPECT_EQ(at(90.0, lower), gray(0));
    }
}

}  // namespace
}  // namespace tonquil
