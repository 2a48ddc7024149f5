// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>

#include "targets/TQColorPatternArea.h"
#include "targets/TQColorSquare.h"
#include "targets/TQGrayscalePatternArea.h"
#include "targets/TQTargetWindowController.h"
#include "targets/TargetWindowList.h"
#include "tests/ui/Input.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

const TargetScreen left{.displayID = 7, .frame = QRect(0, 0, 800, 600)};
const TargetScreen right{.displayID = 9, .frame = QRect(800, 0, 640, 480)};

class FloatingTarget : public testing::Test {
 protected:
    FloatingTarget() {
        controller.setKindChanged([this](int kind) { kinds.push_back(kind); });
        controller.showWindow();
        QApplication::processEvents();
    }

    [[nodiscard]] bool showsGrayscale() const {
        EXPECT_NE(controller.grayscalePatternArea()->isVisible(),
                  controller.colorPatternArea()->isVisible());
        return controller.grayscalePatternArea()->isVisible();
    }

    TQTargetWindowController controller;
    std::vector<int> kinds;
};

TEST_F(FloatingTarget, FollowsPickerAndKeysAndIgnoresUnknownKinds) {
    controller.targetKindPicker()->cell(1)->click();
    EXPECT_TRUE(showsGrayscale());
    for (const int kind : {2, -1, 1 << 30}) {
        controller.setKind(kind);
        EXPECT_EQ(controller.kind(), 1);
    }
    EXPECT_EQ(controller.grayscalePatternArea()->width(), controller.window().width());
    controller.setHintsShown(false);
    for (const auto key : {Qt::Key_1, Qt::Key_2, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right,
                           Qt::Key_Right, Qt::Key_Escape}) {
        pressKey(controller.window(), key);
    }
    EXPECT_THAT(kinds, ElementsAre(1, 0, 1, 0, 1));
    EXPECT_EQ(controller.targetKindPicker()->selectedColumn(), 1);
    EXPECT_TRUE(controller.isShown());
    int closings = 0;
    controller.setClosed([&] { ++closings; });
    controller.window().close();
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(controller.isShown());
    controller.showWindow();
    EXPECT_TRUE(showsGrayscale());
}

class Covers : public testing::Test {
 protected:
    static void click(QWidget& widget) {
        press(widget, {3, 3});
        release(widget, {3, 3});
    }

    TargetWindowList list;
};

TEST_F(Covers, AreDismissedByAClickAnywhereOrByEscape) {
    using Dismissal = std::function<void(TQTargetWindowController&)>;
    for (const Dismissal& dismiss : std::vector<Dismissal>{
             [](auto& each) { click(*each.colorPatternArea()->squareRed()); },
             [](auto& each) { pressKey(each.window(), Qt::Key_Escape); },
             [](auto& each) { each.window().close(); },
             [](auto& each) { each.dismissTargetWindowControllerForScreen(); }}) {
        TQTargetWindowController& controller = list.targetWindowControllerForScreen(left);
        const QPointer<QWidget> window = &controller.window();
        int closings = 0;
        controller.setClosed([&] {
            ++closings;
            EXPECT_EQ(list.existingTargetWindowControllerForScreen(left), nullptr);
        });
        controller.showWindow();
        // The release of an earlier press is no click.
        release(controller.window(), {3, 3});
        ASSERT_TRUE(controller.isShown());
        controller.setKind(1);
        dismiss(controller);
        EXPECT_EQ(closings, 1);
        EXPECT_FALSE(window->isVisible()) << "the controller lives on until the event is done";
        EXPECT_EQ(list.targetWindowControllerForScreen(left).kind(), 0) << "another, from anew";
        list.targetWindowControllerForScreen(left).dismissTargetWindowControllerForScreen();
        QApplication::processEvents();
        EXPECT_TRUE(window.isNull());
    }
}

TEST_F(Covers, FollowTheirDisplaysUntilRemoved) {
    TQTargetWindowController& first = list.targetWindowControllerForScreen(left);
    TQTargetWindowController& second = list.targetWindowControllerForScreen(right);
    second.showWindow();
    QApplication::processEvents();
    EXPECT_EQ(second.colorPatternArea()->geometry(), QRect(QPoint(), right.frame.size()));
    EXPECT_FALSE(second.targetKindPicker()->isVisible()) << "the pattern alone";
    EXPECT_FALSE(first.isShown());
    EXPECT_EQ(list.existingTargetWindowControllerForScreen({1, right.frame}), &second);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen({9, left.frame}), &first);
    // The displays change places.
    const TargetScreen newLeft{.displayID = right.displayID, .frame = left.frame};
    const TargetScreen newRight{.displayID = left.displayID, .frame = QRect(800, 0, 800, 600)};
    list.screensChanged({newLeft, newRight});
    EXPECT_EQ(first.frame(), newRight.frame);
    EXPECT_EQ(second.frame(), newLeft.frame);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(newRight), &first);
    // One comes back under another number, the other is removed.
    int closings = 0;
    first.setClosed([&] { ++closings; });
    const TargetScreen renumbered{.displayID = 12, .frame = newLeft.frame};
    list.screensChanged({renumbered});
    EXPECT_EQ(second.screen(), renumbered);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(newRight), nullptr);
    EXPECT_EQ(closings, 1);
}

TEST_F(Covers, AreNotTakenOverByADisplayThatMovesIntoTheGap) {
    list.screensChanged({left, right});
    list.targetWindowControllerForScreen(left).showWindow();
    list.screensChanged({{.displayID = right.displayID, .frame = left.frame}});
    EXPECT_EQ(list.existingTargetWindowControllerForScreen({right.displayID, left.frame}), nullptr);
}

TEST_F(Covers, MayBeDismissedFromCloseCallback) {
    TQTargetWindowController& first = list.targetWindowControllerForScreen(left);
    TQTargetWindowController& second = list.targetWindowControllerForScreen(right);
    first.setClosed([&] { second.dismissTargetWindowControllerForScreen(); });
    list.screensChanged({});
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(left), nullptr);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(right), nullptr);
}

}  // namespace
}  // namespace tonquil
