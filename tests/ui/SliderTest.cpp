// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QApplication>
#include <QWheelEvent>
#include <limits>
#include <optional>

#include "tests/ui/Input.h"
#include "ui/TQSlider.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

// From 7 to 107 points: a hundredth of the range is a point.
constexpr int width = 114;
constexpr double middle = 12;

class SliderTest : public testing::Test {
 protected:
    SliderTest() {
        slider.resize(width, 24);
        slider.setNeutralValue(0.3F);
        slider.setFloatValue(0.5F);
        slider.setAction([this](TQSlider& sender) { sent.push_back(sender.floatValue()); });
    }

    TQSlider slider;
    std::vector<float> sent;
};

TEST_F(SliderTest, ClampsValueAndIgnoresNotANumber) {
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

TEST_F(SliderTest, FollowsWheelByLinesOrPixels) {
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
        {"three pixels", {0, 24}, {0, 3}, update, false, 0.5F + 0.015F},
        {"pixels, inverted", {0, 24}, {0, 3}, update, true, 0.5F - 0.015F},
        {"pixels that run on", {0, 24}, {0, 3}, Qt::ScrollMomentum, false, std::nullopt},
        {"a wheel whose driver counts pixels", {0, 120}, {0, 120}, noPhase, false, 0.5F + 0.01F},
        {"far above", {0, 12'000}, {}, noPhase, false, 1.0F},
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
    using Row = std::tuple<int, Qt::KeyboardModifiers, Qt::LayoutDirection, float>;
    for (const auto& [key, modifiers, direction, result] :
         {Row{Qt::Key_Up, Qt::NoModifier, Qt::RightToLeft, 0.51F},
          Row{Qt::Key_Down, Qt::ShiftModifier, Qt::LeftToRight, 0.49F},
          Row{Qt::Key_Right, Qt::NoModifier, Qt::LeftToRight, 0.51F},
          Row{Qt::Key_Right, Qt::NoModifier, Qt::RightToLeft, 0.49F},
          Row{Qt::Key_PageUp, Qt::NoModifier, Qt::LeftToRight, 0.6F},
          Row{Qt::Key_PageDown, Qt::NoModifier, Qt::LeftToRight, 0.4F},
          Row{Qt::Key_Home, Qt::NoModifier, Qt::RightToLeft, 0.0F},
          Row{Qt::Key_End, Qt::NoModifier, Qt::LeftToRight, 1.0F},
          Row{Qt::Key_Up, Qt::ControlModifier, Qt::LeftToRight, 0.5F}}) {
        SCOPED_TRACE(key);
        slider.setLayoutDirection(direction);
        slider.setFloatValue(0.5F);
        sent.clear();
        pressKey(slider, key, modifiers);
        EXPECT_EQ(slider.floatValue(), result);
        EXPECT_EQ(sent.size(), result == 0.5F ? 0U : 1U);
    }
}

TEST_F(SliderTest, FollowsPointerOverWholeRow) {
    press(slider, {32, 1});
    move(slider, {57.5, 23}, Qt::LeftButton);
    move(slider, {500, -40}, Qt::LeftButton);
    release(slider, {500, -40});
    move(slider, {32, middle}, Qt::NoButton);
    press(slider, {32, middle}, Qt::RightButton);
    EXPECT_THAT(sent, ElementsAre(0.25F, 0.505F, 1));
    // Grabbing the end of the fill does not move it.
    press(slider, {105, middle});
    move(slider, {105, middle + 1}, Qt::LeftButton);
    EXPECT_EQ(sent.size(), 3U);
    move(slider, {55, middle}, Qt::LeftButton);
    release(slider, {55, middle});
    EXPECT_EQ(sent.back(), 0.5F);

    slider.setLayoutDirection(Qt::RightToLeft);
    press(slider, {32, middle});
    release(slider, {32, middle});
    sendMouse(slider, QEvent::MouseButtonDblClick, {32, middle}, Qt::LeftButton, Qt::LeftButton);
    move(slider, {35, middle}, Qt::LeftButton);
    release(slider, {35, middle});
    EXPECT_THAT(sent, ElementsAre(0.25F, 0.505F, 1, 0.5F, 0.75F, 0.3F)) << "the neutral value";
    EXPECT_FALSE(slider.isInteracting());
}

TEST_F(SliderTest, SnapsToNeutralValueAndDragsFinelyWithControl) {
    // The neutral value is at 37.
    press(slider, {80, middle});
    for (const double x : {34.5, 35.5, 38.5, 40.0}) {
        move(slider, {x, middle}, Qt::LeftButton);
    }
    release(slider, {40, middle});
    EXPECT_THAT(sent, ElementsAre(0.73F, 0.275F, 0.3F, 0.3F, 0.33F));
    sent.clear();
    const auto send = [this](QEvent::Type type, double x, Qt::KeyboardModifiers modifiers) {
        QMouseEvent event(type, {x, middle}, slider.mapToGlobal(QPointF(x, middle)), Qt::LeftButton,
                          Qt::LeftButton, modifiers);
        QApplication::sendEvent(&slider, &event);
    };
    send(QEvent::MouseButtonPress, 90, Qt::ControlModifier);
    EXPECT_THAT(sent, ElementsAre()) << "It starts at the value there is.";
    send(QEvent::MouseMove, 82, Qt::ControlModifier);
    send(QEvent::MouseMove, 102, Qt::NoModifier);
    EXPECT_THAT(sent, ElementsAre(0.31F, 0.51F)) << "Neither snaps nor jumps.";
}

TEST_F(SliderTest, ReportsGrabBeforeValueChanges) {
    std::vector<std::pair<bool, float>> told;
    slider.setInteractionChanged([&told](TQSlider& sender) {
        told.emplace_back(sender.isInteracting(), sender.floatValue());
    });
    slider.show();
    press(slider, {32, middle});
    slider.hide();
    move(slider, {57, middle}, Qt::LeftButton);
    slider.show();
    press(slider, {82, middle});
    slider.setEnabled(false);
    using Told = std::pair<bool, float>;
    EXPECT_THAT(told, ElementsAre(Told(true, 0.5F), Told(false, 0.25F), Told(true, 0.25F),
                                  Told(false, 0.75F)));
}

}  // namespace
}  // namespace tonquil
