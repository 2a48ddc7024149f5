// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <array>
#include <vector>

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

TEST_F(FloatingTarget, ShowsTheKindThatIsSetAndIgnoresOthers) {
    controller.setKind(1);
    for (const int kind : {2, -1, 1 << 30}) {
        controller.setKind(kind);
        EXPECT_EQ(controller.kind(), 1);
    }
    EXPECT_TRUE(showsGrayscale());
    EXPECT_EQ(controller.targetKindPicker()->selectedColumn(), 1);
    EXPECT_EQ(controller.grayscalePatternArea()->width(), controller.window().width());
    EXPECT_THAT(kinds, ElementsAre(1));
}

TEST_F(FloatingTarget, FollowsThePickerAndTheKeys) {
    controller.targetKindPicker()->cell(1)->click();
    EXPECT_TRUE(showsGrayscale());
    controller.setHintsShown(false);
    for (const auto key : {Qt::Key_1, Qt::Key_2, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right,
                           Qt::Key_Right, Qt::Key_Escape}) {
        pressKey(controller.window(), key);
    }
    EXPECT_THAT(kinds, ElementsAre(1, 0, 1, 0, 1));
    EXPECT_TRUE(controller.isShown());
}

TEST_F(FloatingTarget, IsClosedByThePersonAndShownAgain) {
    int closings = 0;
    controller.setClosed([&] { ++closings; });
    controller.setKind(1);
    controller.window().close();
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(controller.isShown());
    controller.showWindow();
    EXPECT_TRUE(controller.isShown());
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

TEST_F(Covers, AreFoundByTheNumberOrThePlaceOfTheirDisplay) {
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(left), nullptr);
    TQTargetWindowController& first = list.targetWindowControllerForScreen(left);
    EXPECT_FALSE(first.isShown());
    EXPECT_EQ(first.kind(), 0);
    TQTargetWindowController& second = list.targetWindowControllerForScreen(right);
    EXPECT_NE(&first, &second);
    EXPECT_EQ(&list.targetWindowControllerForScreen(left), &first);
    struct Row {
        TargetScreen screen;
        TQTargetWindowController* controller;
    };
    for (const Row& row :
         {Row{{.displayID = 7, .frame = QRect(5, 5, 5, 5)}, &first},
          Row{{.displayID = 1, .frame = right.frame}, &second},
          Row{{.displayID = 9, .frame = left.frame}, &first},
          Row{{.displayID = 1, .frame = QRect(0, 0, 800, 601)}, nullptr}, Row{{}, nullptr}}) {
        EXPECT_EQ(list.existingTargetWindowControllerForScreen(row.screen), row.controller);
    }
}

TEST_F(Covers, FillTheirDisplayWithThePatternAlone) {
    TQTargetWindowController& controller = list.targetWindowControllerForScreen(right);
    controller.setKind(1);
    controller.showWindow();
    QApplication::processEvents();
    EXPECT_EQ(controller.frame(), right.frame);
    EXPECT_EQ(controller.grayscalePatternArea()->geometry(), QRect(QPoint(), right.frame.size()));
    EXPECT_FALSE(controller.targetKindPicker()->isVisible());
    EXPECT_TRUE(controller.window().windowFlags().testFlag(Qt::FramelessWindowHint));
    controller.setKind(0);
    EXPECT_EQ(drawn(controller.window()).pixel(0, 0), qRgb(51, 51, 51));
}

TEST_F(Covers, AreDismissedByAClickAnywhereOrByEscape) {
    using Dismissal = std::function<void(TQTargetWindowController&)>;
    const std::array<Dismissal, 5> ways = {
        [](TQTargetWindowController& each) { click(each.window()); },
        [](TQTargetWindowController& each) { click(*each.colorPatternArea()->squareRed()); },
        [](TQTargetWindowController& each) { pressKey(each.window(), Qt::Key_Escape); },
        [](TQTargetWindowController& each) { each.window().close(); },
        [](TQTargetWindowController& each) { each.dismissTargetWindowControllerForScreen(); }};
    for (const Dismissal& dismiss : ways) {
        TQTargetWindowController& controller = list.targetWindowControllerForScreen(left);
        const QPointer<QWidget> window = &controller.window();
        int closings = 0;
        controller.setClosed([&] {
            ++closings;
            EXPECT_EQ(list.existingTargetWindowControllerForScreen(left), nullptr);
        });
        controller.showWindow();
        // An earlier press ends here, which is no click.
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

TEST_F(Covers, FollowTheirDisplaysAndGoWithThem) {
    TQTargetWindowController& first = list.targetWindowControllerForScreen(left);
    TQTargetWindowController& second = list.targetWindowControllerForScreen(right);
    // The displays change places.
    const TargetScreen newLeft{.displayID = right.displayID, .frame = QRect(0, 0, 640, 480)};
    const TargetScreen newRight{.displayID = left.displayID, .frame = QRect(640, 0, 800, 600)};
    list.screensChanged({newLeft, newRight});
    EXPECT_EQ(first.frame(), newRight.frame);
    EXPECT_EQ(second.frame(), newLeft.frame);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(newRight), &first);
    // One comes back under another number, the other goes.
    int closings = 0;
    first.setClosed([&] { ++closings; });
    const TargetScreen renumbered{.displayID = 12, .frame = newLeft.frame};
    list.screensChanged({renumbered});
    EXPECT_EQ(second.screen(), renumbered);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(newRight), nullptr);
    EXPECT_EQ(closings, 1);
}

TEST_F(Covers, MayBeDismissedByWhoHearsThatAnotherOneClosed) {
    TQTargetWindowController& first = list.targetWindowControllerForScreen(left);
    TQTargetWindowController& second = list.targetWindowControllerForScreen(right);
    first.setClosed([&] { second.dismissTargetWindowControllerForScreen(); });
    list.screensChanged({});
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(left), nullptr);
    EXPECT_EQ(list.existingTargetWindowControllerForScreen(right), nullptr);
}

}  // namespace
}  // namespace tonquil
