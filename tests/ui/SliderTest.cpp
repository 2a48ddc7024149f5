// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QWheelEvent>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "tests/ui/Input.h"
#include "ui/TQSlider.h"
#include "ui/theme/Theme.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

// From 7 to 107 points: a hundredth of the range is a point.
constexpr int width = 114;
constexpr double middle = 12;

class SliderTest : public testing::Test {
 protected:
    SliderTest() {
        setAppearance(slider, {});
        slider.resize(width, 24);
        slider.setNeutralValue(0.3F);
        slider.setFloatValue(0.5F);
        slider.setAction([this](TQSlider& sender) { sent.push_back(sender.floatValue()); });
    }

    TQSlider slider;
    std::vector<float> sent;
};

TEST_F(SliderTest, KeepsItsValueWithinItsRangeAndIgnoresWhatIsNoNumber) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    slider.setFloatValue(7);
    EXPECT_EQ(slider.floatValue(), 1);
    slider.setFloatValue(nan);
    EXPECT_EQ(slider.floatValue(), 1);
    slider.setRange(-1, 0.25F);
    EXPECT_EQ(slider.floatValue(), 0.25F);
    for (const auto& [minimum, maximum] : {std::pair{1.0F, 0.0F}, {nan, 1.0F}, {0.0F, nan}}) {
        slider.setRange(minimum, maximum);
        EXPECT_EQ(slider.minValue(), -1);
        EXPECT_EQ(slider.maxValue(), 0.25F);
    }
    slider.setFloatValue(-std::numeric_limits<float>::infinity());
    EXPECT_EQ(slider.floatValue(), -1);
    EXPECT_THAT(sent, ElementsAre());
}

TEST_F(SliderTest, FollowsTheWheelByLinesOrByPixels) {
    const auto noPhase = Qt::NoScrollPhase;
    const auto update = Qt::ScrollUpdate;
    struct Row {
        const char* what;
        QPoint angle;
        QPoint pixels;
        Qt::ScrollPhase phase;
        bool isInverted;
        std::optional<float> result;
    };
    const std::vector<Row> rows = {
        {"three lines", {0, 360}, {}, noPhase, false, 0.5F + 0.03F},
        {"an eighth of a line", {0, -15}, {}, noPhase, false, 0.5F - 0.00125F},
        {"lines, inverted", {0, 360}, {}, noPhase, true, 0.5F - 0.03F},
        {"three pixels", {0, 24}, {0, 3}, update, false, 0.5F + 0.015F},
        {"pixels, inverted", {0, 24}, {0, 3}, update, true, 0.5F - 0.015F},
        {"pixels that run on", {0, 24}, {0, 3}, Qt::ScrollMomentum, false, std::nullopt},
        {"a wheel whose driver counts pixels", {0, 120}, {0, 120}, noPhase, false, 0.5F + 0.01F},
        {"far above", {0, 12'000}, {}, noPhase, false, 1.0F},
        {"far below", {0, -12'000}, {}, noPhase, false, 0.0F},
        {"sideways", {360, 0}, {}, noPhase, false, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        slider.setFloatValue(0.5F);
        sent.clear();
        QWheelEvent event({5, 5}, {5, 5}, row.pixels, row.angle, Qt::NoButton, Qt::NoModifier,
                          row.phase, row.isInverted);
        QApplication::sendEvent(&slider, &event);
        EXPECT_EQ(slider.floatValue(), row.result.value_or(0.5F));
        EXPECT_EQ(sent.size(), row.result ? 1U : 0U);
    }
}

TEST_F(SliderTest, StepsByKeysInReadingDirection) {
    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        Qt::LayoutDirection direction;
        std::optional<float> result;
    };
    const auto forth = Qt::LeftToRight;
    const auto back = Qt::RightToLeft;
    const std::vector<Row> rows = {
        {Qt::Key_Up, Qt::NoModifier, forth, 0.51F},
        {Qt::Key_Down, Qt::ShiftModifier, forth, 0.49F},
        {Qt::Key_Right, Qt::NoModifier, forth, 0.51F},
        {Qt::Key_Right, Qt::NoModifier, back, 0.49F},
        {Qt::Key_Left, Qt::ShiftModifier, back, 0.51F},
        {Qt::Key_Up, Qt::NoModifier, back, 0.51F},
        {Qt::Key_PageUp, Qt::NoModifier, forth, 0.6F},
        {Qt::Key_PageDown, Qt::NoModifier, forth, 0.4F},
        {Qt::Key_Home, Qt::NoModifier, back, 0.0F},
        {Qt::Key_End, Qt::NoModifier, forth, 1.0F},
        {Qt::Key_Up, Qt::ControlModifier, forth, std::nullopt},
        {Qt::Key_Left, Qt::AltModifier, forth, std::nullopt},
        {Qt::Key_Delete, Qt::NoModifier, forth, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.key);
        slider.setLayoutDirection(row.direction);
        slider.setFloatValue(0.5F);
        sent.clear();
        pressKey(slider, row.key, row.modifiers);
        EXPECT_EQ(slider.floatValue(), row.result.value_or(0.5F));
        EXPECT_EQ(sent.size(), row.result ? 1U : 0U);
    }
}

TEST_F(SliderTest, FollowsThePointerOverTheWholeRow) {
    press(slider, {32, 1});
    move(slider, {57.5, 23}, Qt::LeftButton);
    move(slider, {500, -40}, Qt::LeftButton);
    release(slider, {500, -40});
    move(slider, {32, middle}, Qt::NoButton);
    press(slider, {32, middle}, Qt::RightButton);
    EXPECT_THAT(sent, ElementsAre(0.25F, 0.505F, 1));

    slider.setLayoutDirection(Qt::RightToLeft);
    doubleClick(slider, {32, middle});
    EXPECT_THAT(sent, ElementsAre(0.25F, 0.505F, 1, 0.75F, 0.3F)) << "the neutral value";
    EXPECT_FALSE(slider.isInteracting());
}

TEST_F(SliderTest, TellsWhenItIsHeldWithTheValueFromBefore) {
    std::vector<std::pair<bool, float>> told;
    slider.setInteractionChanged([&told](TQSlider& sender) {
        told.emplace_back(sender.isInteracting(), sender.floatValue());
    });
    slider.show();
    press(slider, {32, middle});
    release(slider, {32, middle});
    press(slider, {82, middle});
    slider.hide();
    move(slider, {57, middle}, Qt::LeftButton);
    slider.show();
    press(slider, {57, middle});
    slider.setEnabled(false);
    EXPECT_THAT(
        told, ElementsAre(std::pair(true, 0.5F), std::pair(false, 0.25F), std::pair(true, 0.25F),
                          std::pair(false, 0.75F), std::pair(true, 0.75F), std::pair(false, 0.5F)));
}

TEST_F(SliderTest, FillsTheBarUpToTheValue) {
    struct Row {
        float value;
        Qt::LayoutDirection direction;
        /// The first column of the fill, and the first behind it.
        std::pair<int, int> fill;
        int edge;
    };
    const std::vector<Row> rows = {
        {0.0F, Qt::LeftToRight, {-1, -1}, 7},    {0.5F, Qt::LeftToRight, {7, 56}, 56},
        {1.0F, Qt::LeftToRight, {7, 105}, 105},  {0.0F, Qt::RightToLeft, {-1, -1}, 105},
        {0.25F, Qt::RightToLeft, {83, 107}, 81}, {1.0F, Qt::RightToLeft, {9, 107}, 7},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value);
        slider.setLayoutDirection(row.direction);
        slider.setFloatValue(row.value);
        const QImage picture = drawn(slider);
        std::pair fill(-1, -1);
        for (int x = 0; x < width; ++x) {
            const QColor colour = picture.pixelColor(x, static_cast<int>(middle));
            if (colour.red() > 100 && colour.blue() < 50) {
                fill = {fill.first < 0 ? x : fill.first, x + 1};
            }
        }
        EXPECT_EQ(fill, row.fill);
        const QColor edge = themeFor({}).edge;
        EXPECT_TRUE(isNear(picture.pixelColor(row.edge + 1, static_cast<int>(middle)), edge));
        // The notch of the neutral 0.3.
        const int notch = row.direction == Qt::LeftToRight ? 36 : 76;
        EXPECT_TRUE(isNear(picture.pixelColor(notch, 18), themeFor({}).secondaryText));
    }
}

TEST_F(SliderTest, IsASliderWithItsValueForAssistiveTechnology) {
    slider.setRange(-1, 2);
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Slider);
    QAccessibleValueInterface* value = found->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toDouble(), -1);
    EXPECT_EQ(value->maximumValue().toDouble(), 2);
    value->setCurrentValue(0.25);
    value->setCurrentValue(99.0);
    value->setCurrentValue(QStringLiteral("much"));
    EXPECT_THAT(sent, testing::ElementsAre(0.25F, 2));
    EXPECT_EQ(value->currentValue().toDouble(), 2);
    EXPECT_EQ(found->text(QAccessible::Value), QStringLiteral("2.00"));
}

}  // namespace
}  // namespace tonquil
