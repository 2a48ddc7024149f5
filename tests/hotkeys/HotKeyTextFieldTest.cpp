// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include "hotkeys/VirtualKeys.h"
#include "hotkeys/field/DDHotKeyTextField.h"
#include "tests/hotkeys/TableLayout.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

struct Key {
    std::uint32_t evdevCode;
    int key;
    const char* text = "";
    std::uint32_t keysym = 0;
};

constexpr Key a{KEY_A, Qt::Key_A, "a"};
constexpr Key q{KEY_Q, Qt::Key_Q, "q"};
constexpr Key enter{KEY_ENTER, Qt::Key_Return, "\r"};
constexpr Key keypadEnter{KEY_KPENTER, Qt::Key_Enter, "\r"};
constexpr Key escape{KEY_ESC, Qt::Key_Escape, "\x1b"};
constexpr Key tab{KEY_TAB, Qt::Key_Tab, "\t"};
constexpr Key backspace{KEY_BACKSPACE, Qt::Key_Backspace, "\b"};
constexpr Key del{KEY_DELETE, Qt::Key_Delete, "\x7f"};
constexpr Key left{KEY_LEFT, Qt::Key_Left};
constexpr Key capsAsEscape{KEY_CAPSLOCK, Qt::Key_Escape, "\x1b"};
constexpr Key printScreen{KEY_SYSRQ, Qt::Key_Print};

class HotKeyTextFieldTest : public testing::Test {
 protected:
    void SetUp() override {
        auto* const column = new QVBoxLayout(&window);
        column->addWidget(other);
        column->addWidget(field);
        for (const auto& [signal, text] : {std::pair(&DDHotKeyTextField::hotKeyChanged, "changed"),
                                           {&DDHotKeyTextField::recordingBegan, "began"},
                                           {&DDHotKeyTextField::recordingEnded, "ended"}}) {
            QObject::connect(field, signal, [this, text = text] { told.emplace_back(text); });
        }
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        other->setFocus();
        field->setHotKey(former);
    }
    /// Sends a key event as the platform does: first the shortcut override, then the key.
    void send(QEvent::Type type, const Key& key, Qt::KeyboardModifiers held, bool isRepeat) {
        QWidget* const receiver = window.focusWidget() != nullptr ? window.focusWidget() : &window;
        const auto make = [&](QEvent::Type made) {
            return QKeyEvent(made, key.key, held, key.evdevCode + 8, key.keysym, 0,
                             QString::fromLatin1(key.text), isRepeat);
        };
        if (type == QEvent::KeyPress) {
            QKeyEvent asked = make(QEvent::ShortcutOverride);
            asked.ignore();
            QApplication::sendEvent(receiver, &asked);
            wasOverridden = asked.isAccepted();
        }
        QKeyEvent event = make(type);
        QApplication::sendEvent(receiver, &event);
    }
    void press(const Key& key, Qt::KeyboardModifiers held = Qt::NoModifier, bool isRepeat = false) {
        send(QEvent::KeyPress, key, held, isRepeat);
    }
    void release(const Key& key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        send(QEvent::KeyRelease, key, held, false);
    }
    void record() {
        field->setFocus(Qt::MouseFocusReason);
        ASSERT_TRUE(field->isRecording());
        told.clear();
    }
    [[nodiscard]] std::string shown() const { return field->text().toStdString(); }

    std::vector<std::string> told;
    TableLayout layout;
    const std::shared_ptr<DDHotKey> former =
        DDHotKey::hotKeyWithKeyCode(0, ModifierFlag::command, {});
    QWidget window;
    QLineEdit* other = new QLineEdit;
    DDHotKeyTextField* field = new DDHotKeyTextField(layout);
    bool wasOverridden = false;
};

TEST_F(HotKeyTextFieldTest, EndsAfterRecordingACombination) {
    struct Row {
        Key key;
        Qt::KeyboardModifiers held;
        std::uint16_t keyCode;
        ModifierFlags flags;
        const char* shown;
    };
    const std::vector<Row> rows{
        {a, Qt::MetaModifier, 0, ModifierFlag::command, "⌘A"},
        {q, Qt::ControlModifier | Qt::AltModifier, 12, ModifierFlag::control | ModifierFlag::option,
         "⌃⌥Q"},
        {{KEY_F5, Qt::Key_F5}, Qt::NoModifier, 96, ModifierFlag::function, "F5"},
        {left, Qt::ShiftModifier | Qt::KeypadModifier, 123,
         ModifierFlag::function | ModifierFlag::shift | ModifierFlag::numericPad, "⇧←"},
        {escape, Qt::AltModifier, 53, ModifierFlag::option, "⌥⎋"},
    };
    std::size_t calls = 0;
    field->setHotKey(DDHotKey::hotKeyWithKeyCode(0, 0, [&](const HotKeyEvent&) { ++calls; }));
    for (const Row& row : rows) {
        SCOPED_TRACE(row.shown);
        record();
        press(row.key, row.held);
        EXPECT_TRUE(wasOverridden) << "a shortcut of the window would have run";
        ASSERT_NE(field->hotKey(), nullptr);
        EXPECT_EQ(field->hotKey()->keyCode(), row.keyCode);
        EXPECT_EQ(field->hotKey()->modifierFlags(), row.flags);
        EXPECT_EQ(shown(), row.shown);
        EXPECT_THAT(told, ElementsAre("changed", "ended"));
        EXPECT_FALSE(field->hasFocus());
        field->hotKey()->invokeWithEvent({});
        release(row.key, row.held);
    }
    EXPECT_EQ(calls, rows.size()) << "the task goes on from one to the next";
}

TEST_F(HotKeyTextFieldTest, SwallowsKeysWithoutModifierAndKeepsRecording) {
    record();
    for (const Key& key : {a, tab, backspace, del, printScreen}) {
        SCOPED_TRACE(key.key);
        press(key);
        EXPECT_TRUE(wasOverridden);
    }
    press({KEY_LEFTSHIFT, Qt::Key_Shift}, Qt::ShiftModifier);
    // With a layout switch on Alt+Shift or on Super+Space.
    press({KEY_LEFTSHIFT, Qt::Key_unknown}, Qt::AltModifier);
    press({KEY_SPACE, Qt::Key_unknown, "", 0xFE08}, Qt::MetaModifier);
    press(printScreen, Qt::ControlModifier);
    press(a, Qt::KeypadModifier);
    press(a, Qt::ControlModifier, true);
    EXPECT_TRUE(field->isRecording()) << "neither a key unknown to hot keys nor a repeat";
    EXPECT_EQ(field->hotKey(), former);
    EXPECT_THAT(told, ElementsAre());
    EXPECT_EQ(shown(), "⌘A");
}

TEST_F(HotKeyTextFieldTest, EndsUnchangedByReturnEscapeAndFocusLoss) {
    for (const Key& key : {enter, keypadEnter, escape, capsAsEscape}) {
        SCOPED_TRACE(key.evdevCode);
        record();
        press(key);
        release(key);
        EXPECT_FALSE(field->hasFocus());
        EXPECT_THAT(told, ElementsAre("ended"));
    }
    record();
    other->setFocus();
    EXPECT_THAT(told, ElementsAre("ended"));
    EXPECT_EQ(field->hotKey(), former);
    // Escape restores the hot key from the start of the recording.
    record();
    field->setHotKey(DDHotKey::hotKeyWithKeyCode(12, ModifierFlag::shift, {}));
    press(escape);
    EXPECT_EQ(field->hotKey(), former);
    EXPECT_THAT(told, ElementsAre("changed", "ended"));
    // A field destroyed during a recording releases the keys.
    record();
    delete field;
    other->setFocus();
    press(a);
    EXPECT_EQ(other->text(), QStringLiteral("a"));
}

TEST_F(HotKeyTextFieldTest, BeginsByAClickOrTheSpaceBarAndTheCrossTakesTheHotKeyAway) {
    field->setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(field->isRecording()) << "its window came to the front";
    other->setFocus();
    field->setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(field->isRecording()) << "it would hold the next Tab";
    press({KEY_SPACE, Qt::Key_Space, " "});
    EXPECT_TRUE(field->isRecording());
    EXPECT_THAT(told, ElementsAre("began"));
    auto* const cross = field->findChild<QAbstractButton*>();
    EXPECT_TRUE(cross->isVisible());
    cross->click();
    EXPECT_EQ(field->hotKey(), nullptr);
    EXPECT_EQ(shown(), "");
    EXPECT_THAT(told, ElementsAre("began", "changed", "ended"));
    EXPECT_FALSE(cross->isVisible());
}

}  // namespace
}  // namespace tonquil
