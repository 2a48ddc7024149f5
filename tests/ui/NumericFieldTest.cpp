// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

#include "tests/ui/Input.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQNumericTextView.h"
#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"
#include "ui/style/QuietStyle.h"
#include "ui/theme/Theme.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

class NumericFieldTest : public testing::Test {
 protected:
    NumericFieldTest() {
        auto* row = new QHBoxLayout(&window);
        row->addWidget(slider);
        row->addWidget(field);
        row->addWidget(other);
        slider->setAuxiliary(field);
        slider->setFloatValue(0.5F);
        slider->setAction([this](TQSlider& sender) { sent.push_back(sender.floatValue()); });
        keys.attach(*field);
        present(window);
        field->setFocus(Qt::TabFocusReason);
    }

    std::string shown() { return field->text().toStdString(); }

    /// Outlives the window, whose destruction commits the text being typed.
    std::vector<float> sent;
    TQNumericTextView keys;
    QWidget window;
    TQSlider* slider = new TQSlider;
    TQNumericTextField* field = new TQNumericTextField;
    QLineEdit* other = new QLineEdit;
};

TEST_F(NumericFieldTest, CommitsNumbersInRangeAndRevertsOtherText) {
    struct Row {
        const char* typed;
        int end;
        float value;
        bool isSent;
        const char* shown;
    };
    constexpr int leave = 0;
    const std::vector<Row> rows = {
        {"0.25", Qt::Key_Return, 0.25F, true, "0.250"},
        {"0,25", Qt::Key_Enter, 0.25F, true, "0.250"},
        {" .1234567 ", Qt::Key_Return, 0.1234567F, true, "0.123"},
        {"7", Qt::Key_Return, 1, true, "1.000"},
        {"-7", leave, 0, true, "0.00"},
        {"0.7", Qt::Key_Escape, 0.5F, false, "0.500"},
        {"0.7x", leave, 0.5F, false, "0.50"},
        {"", leave, 0.5F, false, "0.50"},
        {"1,000.5", Qt::Key_Return, 0.5F, false, "0.500"},
        {"nan", Qt::Key_Return, 0.5F, false, "0.500"},
        {"1e99", leave, 0.5F, false, "0.50"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed);
        field->setFocus();
        slider->setFloatValue(0.5F);
        field->setFloatValue(0.5F);
        sent.clear();
        typeOver(*field, QString::fromUtf8(row.typed));
        EXPECT_THAT(sent, ElementsAre());
        if (row.end == leave) {
            other->setFocus();
        } else {
            pressKey(*field, row.end);
        }
        EXPECT_EQ(slider->floatValue(), row.value);
        EXPECT_EQ(field->floatValue(), row.value);
        EXPECT_EQ(sent.size(), row.isSent ? 1U : 0U);
        EXPECT_EQ(shown(), row.shown);
    }
}

TEST_F(NumericFieldTest, NeverRoundsUneditedValue) {
    const float exact = 0.123456F;
    slider->setFloatValue(exact);
    static_cast<void>(drawn(*slider));
    EXPECT_EQ(shown(), "0.123");
    typeOver(*field, QStringLiteral("0.123"));
    pressKey(*field, Qt::Key_Return);
    other->setFocus();
    EXPECT_EQ(shown(), "0.12");
    EXPECT_EQ(field->floatValue(), exact);
    EXPECT_EQ(slider->floatValue(), exact);
    EXPECT_THAT(sent, ElementsAre());
}

TEST_F(NumericFieldTest, KeepsTypedTextDuringRepaintsAndMenus) {
    typeOver(*field, QStringLiteral("0.7"));
    slider->setFloatValue(0.2F);
    static_cast<void>(drawn(*slider));
    QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(field, &popup);
    EXPECT_EQ(shown(), "0.7");
    pressKey(*field, Qt::Key_Return);
    EXPECT_THAT(sent, ElementsAre(0.7F));
}

TEST_F(NumericFieldTest, StepsByTheArrowKeysAndShowsTheLimitWhenTheSliderIsDrawn) {
    typeOver(*field, QStringLiteral("0.995"));
    pressKey(*field, Qt::Key_Up);
    EXPECT_EQ(slider->floatValue(), 1);
    static_cast<void>(drawn(*slider));
    EXPECT_EQ(field->floatValue(), 1);
    EXPECT_EQ(shown(), "1.000");
    typeOver(*field, QStringLiteral("0.5"));
    pressKey(*field, Qt::Key_Down);
    EXPECT_EQ(shown(), "0.490");
    EXPECT_THAT(sent, ElementsAre(1, 0.49F));
}

TEST_F(NumericFieldTest, NotifiesOnlyItsOwnSliderInAnyDestructionOrder) {
    TQSlider stranger;
    stranger.setAction([](TQSlider&) { FAIL() << "A stranger's field was heard."; });
    stranger._updateToAuxiliaryValue(*field);
    auto next = std::make_unique<TQSlider>();
    next->setAuxiliary(field);
    next.reset();
    pressKey(*field, Qt::Key_Up);
    slider->setAuxiliary(field);
    delete field;
    static_cast<void>(drawn(*slider));
    EXPECT_EQ(slider->auxiliary(), nullptr);
}

TEST_F(NumericFieldTest, LeavesUndoAndEscapeToWindowUnlessEdited) {
    for (const bool isTyped : {false, true}) {
        if (isTyped) {
            typeOver(*field, QStringLiteral("0.7"));
        }
        for (const auto& [key, modifiers] :
             {std::pair{Qt::Key_Z, Qt::ControlModifier}, {Qt::Key_Escape, Qt::NoModifier}}) {
            QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
            event.ignore();
            QApplication::sendEvent(field, &event);
            EXPECT_EQ(event.isAccepted(), isTyped) << key;
        }
    }
}

TEST_F(NumericFieldTest, ShowsFocusRingOnlyForKeyboard) {
    QuietStyle style;
    auto* const button = new QPushButton(&window);
    auto* const list = new QComboBox(&window);
    button->setStyle(&style);
    list->setStyle(&style);
    list->show();
    button->show();
    for (QWidget* const each : std::initializer_list<QWidget*>{slider, field, button, list}) {
        SCOPED_TRACE(each->metaObject()->className());
        for (const auto& [reason, isShown] : {std::pair(Qt::TabFocusReason, true),
                                              {Qt::MouseFocusReason, false},
                                              {Qt::OtherFocusReason, false}}) {
            other->setFocus();
            each->setFocus(reason);
            const QColor edge = drawn(*each).pixelColor(1, each->height() / 2);
            EXPECT_EQ(isNear(edge, themeOf(*each).focusRing), isShown) << reason;
        }
    }
    delete button;
    delete list;
}

TEST(MatrixTest, FollowsArrowKeysInReadingDirectionAndReportsUserChangesOnly) {
    TQVibrantMatrix tabs({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    std::vector<int> picked;
    tabs.setAction([&](int column) { picked.push_back(column); });
    present(tabs);
    tabs.cell(0)->setFocus();
    for (const int key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Home}) {
        pressKey(*tabs.focusWidget(), key);
    }
    tabs.setLayoutDirection(Qt::RightToLeft);
    pressKey(*tabs.focusWidget(), Qt::Key_Left);
    tabs.cell(2)->click();
    tabs.cell(2)->click();
    for (const int column : {0, 3, -1}) {
        tabs.setSelectedColumn(column);
    }
    EXPECT_TRUE(tabs.cell(0)->isChecked());
    EXPECT_THAT(picked, ElementsAre(1, 2, 0, 1, 2));
}

}  // namespace
}  // namespace tonquil
