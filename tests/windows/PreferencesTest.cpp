// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTranslator>
#include <tuple>

#include "app/preferences/SettingsKeys.h"
#include "hotkeys/field/DDHotKeyTextField.h"
#include "tests/app/PlainStore.h"
#include "tests/hotkeys/TableLayout.h"
#include "tests/ui/Input.h"
#include "ui/theme/Appearance.h"
#include "windows/preferences/PreferencesWindow.h"
#include "windows/preferences/RadioMatrix.h"
#include "windows/preferences/TQPrefController.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FakeLoginItem final : public LoginItem {
 public:
    [[nodiscard]] bool isEnabled() const override { return isOn; }
    [[nodiscard]] Result<void> setEnabled(bool isEnabled) override {
        if (isStuck) {
            return problem("It is stuck.");
        }
        isOn = isEnabled;
        return {};
    }

    bool isOn = false;
    bool isStuck = false;
};

class PreferencesTest : public testing::Test {
 protected:
    void SetUp() override { store.registerDefaults(registeredDefaults()); }

    /// Makes the window anew, and shows it.
    PreferencesWindow& open(int toolkitVersion = 1343) {
        controller = std::make_unique<TQPrefController>(PreferencesSurroundings{
            store, loginItem, alerts, layout, program, "/home/kim",
            [this](std::string_view line) { log.emplace_back(line); }, toolkitVersion});
        controller->showWindow();
        QApplication::processEvents();
        return controller->window();
    }
    [[nodiscard]] PropertyValue stored(const std::string& key) const {
        return store.stored.value(key, PropertyValue());
    }
    /// Types Super and Q, or the like.
    static void typeCombination(QWidget& receiver) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Q, Qt::MetaModifier, KEY_Q + 8, 0, 0);
        QApplication::sendEvent(&receiver, &event);
    }
    static void click(QAbstractButton& button) { button.click(); }
    static void click(const RadioMatrix& matrix, int cell) {
        click(*matrix.findChildren<QRadioButton*>().at(cell));
    }

    PlainStore store;
    FakeLoginItem loginItem;
    ScriptedAlerts alerts;
    TableLayout layout;
    std::string program = "/usr/bin/tonquil";
    std::vector<std::string> log;
    std::unique_ptr<TQPrefController> controller;
};

TEST_F(PreferencesTest, WritesEachSettingAtOnceAndNoOther) {
    const std::vector<std::tuple<QString, std::string>> rows = {
        {QStringLiteral("rememberWhenQuitting"), "RememberSettings"},
        {QStringLiteral("ContinuouslyApply"), "ContinuouslyApply"},
        {QStringLiteral("advancedPanel"), "AdvancedPanel"},
        {QStringLiteral("showAtLaunch"), "ShowAtLaunch"},
        {QStringLiteral("useHotKey"), "UseHotKey"},
        {QStringLiteral("panelHotKey"), "PanelHotKey"},
        {QStringLiteral("darkTheme"), "DarkTheme"},
        {QStringLiteral("allowRemote"), "AllowRemote"},
        {QStringLiteral("channelStrip"), "ChannelStrip"},
        {QStringLiteral("showTargetHints"), "ShowTargetHints"}};
    for (const bool before : {false, true}) {
        for (const auto& [name, key] : rows) {
            SCOPED_TRACE(key);
            store.stored[key] = before;
            auto* const box = open().findChild<QCheckBox*>(name);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->isChecked(), before);
            store.written.clear();
            click(*box);
            EXPECT_THAT(store.written, ElementsAre(key));
            EXPECT_EQ(stored(key), !before);
        }
    }
}

TEST_F(PreferencesTest, WritesTheTagOfAChoiceAsABoolean) {
    const std::vector<std::tuple<QString, std::string>> rows = {
        {QStringLiteral("affectAllScreens"), "AffectAllScreens"},
        {QStringLiteral("toggleApply"), "ToggleApply"},
        {QStringLiteral("showStatusItem"), "ShowStatusItem"}};
    for (const auto& [name, key] : rows) {
        SCOPED_TRACE(key);
        store.stored[key] = 1;
        auto* matrix = open().findChild<RadioMatrix*>(name);
        ASSERT_NE(matrix, nullptr);
        EXPECT_EQ(matrix->selectedTag(), 1);
        for (const int tag : {0, 1}) {
            store.written.clear();
            click(*matrix, tag);
            EXPECT_THAT(store.written, ElementsAre(key));
            EXPECT_EQ(stored(key), tag == 1);
        }
        // Only the status item is read as a number, for which there may be no cell.
        store.stored[key] = 2;
        matrix = open().findChild<RadioMatrix*>(name);
        EXPECT_EQ(matrix->selectedTag(), key == "ShowStatusItem" ? 0 : 1);
    }
}

TEST_F(PreferencesTest, FollowsFromElsewhereOnlyWhatIsBound) {
    PreferencesWindow& window = open();
    EXPECT_TRUE(effectiveAppearance(window).isDark);
    for (const std::string key : {"DarkTheme", "ShowAtLaunch", "ShowTargetHints"}) {
        store.stored[key] = false;
    }
    store.stored["AllowRemote"] = true;
    store.tell();
    EXPECT_FALSE(window.darkTheme->isChecked());
    EXPECT_FALSE(effectiveAppearance(window).isDark);
    EXPECT_FALSE(window.showTargetHints->isChecked());
    EXPECT_TRUE(window.allowRemote->isChecked());
    EXPECT_TRUE(window.showAtLaunch->isChecked());
    EXPECT_THAT(store.written, IsEmpty());
    controller->update();
    EXPECT_FALSE(window.showAtLaunch->isChecked());
}

TEST_F(PreferencesTest, RecordsAHotKeyThatIsSwitchedOnButNotThere) {
    int recordings = 0;
    PreferencesWindow& window = open();
    controller->setRecordingHooks([&] { ++recordings; }, [&] { recordings += 10; });
    EXPECT_EQ(window.focusWidget(), &window);
    click(*window.panelHotKey);
    EXPECT_EQ(window.focusWidget(), window.panelHotKeyField);
    EXPECT_TRUE(window.panelHotKeyField->isRecording());
    EXPECT_EQ(recordings, 1);
    store.written.clear();
    typeCombination(*window.panelHotKeyField);
    EXPECT_THAT(store.written, ElementsAre("PanelHotKeyCode", "PanelHotKeyModifiers"));
    EXPECT_EQ(stored("PanelHotKeyCode"), 12);
    EXPECT_EQ(stored("PanelHotKeyModifiers"), 0x100000);
    EXPECT_EQ(window.focusWidget(), &window);
    EXPECT_EQ(recordings, 11);

    // Off: no control keeps the focus. On again: there is a hot key, so it stays where it is.
    window.showAtLaunch->setFocus();
    click(*window.panelHotKey);
    EXPECT_EQ(window.focusWidget(), &window);
    window.showAtLaunch->setFocus();
    click(*window.panelHotKey);
    EXPECT_EQ(window.focusWidget(), window.showAtLaunch);

    click(*window.useHotKey);
    EXPECT_TRUE(window.hotKeyField->isRecording());
    window.close();
    EXPECT_FALSE(window.hotKeyField->isRecording());
    EXPECT_FALSE(window.isVisible());
    controller->showWindow();
    EXPECT_EQ(window.focusWidget(), &window);
    EXPECT_FALSE(window.hotKeyField->isRecording());
}

TEST_F(PreferencesTest, ReadsAStoredHotKeyByItsLowBits) {
    const std::vector<std::tuple<std::int64_t, std::int64_t, int>> rows = {
        {0, 0, -1}, {0x10000, 0, -1}, {0, 0x100000, 0}, {0x1000C, 0x100000, 12}, {122, 0, 122}};
    for (const auto& [code, modifiers, expected] : rows) {
        SCOPED_TRACE(code);
        store.stored["UseHotKeyCode"] = code;
        store.stored["UseHotKeyModifiers"] = modifiers;
        const auto hotKey = open().hotKeyField->hotKey();
        EXPECT_EQ(hotKey ? hotKey->keyCode() : -1, expected);
        EXPECT_EQ(hotKey ? hotKey->modifierFlags() : 0, hotKey ? modifiers : 0);
    }
    // Taken away again, it leaves zeros.
    DDHotKeyTextField& field = *controller->window().hotKeyField;
    field.findChild<QAbstractButton*>()->click();
    EXPECT_EQ(stored("UseHotKeyCode"), 0);
    EXPECT_EQ(stored("UseHotKeyModifiers"), 0);
}

TEST_F(PreferencesTest, ShowsWhatBecameOfTheLoginItem) {
    PreferencesWindow& window = open();
    click(*window.openAtLoginCheckbox);
    EXPECT_TRUE(loginItem.isOn);
    EXPECT_TRUE(window.openAtLoginCheckbox->isChecked());
    loginItem.isStuck = true;
    click(*window.openAtLoginCheckbox);
    EXPECT_TRUE(window.openAtLoginCheckbox->isChecked());
    EXPECT_THAT(log, ElementsAre("Failed to set login item enabled to 0", "It is stuck."));
    loginItem.isStuck = false;
    click(*window.openAtLoginCheckbox);
    EXPECT_FALSE(window.openAtLoginCheckbox->isChecked());
    EXPECT_THAT(alerts.shown, IsEmpty());
    EXPECT_THAT(store.written, IsEmpty());
    loginItem.isOn = true;
    EXPECT_TRUE(open().openAtLoginCheckbox->isChecked());
}

TEST_F(PreferencesTest, AdvisesWhereTheProgramMayBeGoneAtTheNextLogin) {
    program = "/home/kim/Downloads/tonquil";
    PreferencesWindow& window = open();
    click(*window.openAtLoginCheckbox);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().message,
              "Launch at login is more reliable when the Tonquil is located in the Applications "
              "folder.");
    EXPECT_THAT(alerts.shown.front().buttons, ElementsAre("OK"));
    EXPECT_TRUE(loginItem.isOn);
    click(*window.openAtLoginCheckbox);
    EXPECT_EQ(alerts.shown.size(), 1U);
}

TEST_F(PreferencesTest, OffersOnlyWhatTheToolkitHas) {
    for (const auto& [version, hasStatusItem, hasDarkTheme] :
         std::vector<std::tuple<int, bool, bool>>{
             {1137, false, false}, {1138, true, false}, {1342, true, false}, {1343, true, true}}) {
        SCOPED_TRACE(version);
        const PreferencesWindow& window = open(version);
        EXPECT_EQ(window.showStatusItem->isVisible(), hasStatusItem);
        EXPECT_EQ(window.showStatusLabel->isVisible(), hasStatusItem);
        EXPECT_EQ(window.darkTheme->isVisible(), hasDarkTheme);
    }
}

/// A language whose words are three times as long.
class LongWords final : public QTranslator {
 public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text,
                                    const char* /*disambiguation*/, int /*n*/) const override {
        return QString::fromUtf8(text).repeated(3);
    }
};

TEST_F(PreferencesTest, HasRoomForLongWordsAndForWhatIsWrongWithAHotKey) {
    LongWords words;
    QApplication::installTranslator(&words);
    PreferencesWindow& window = open();
    QApplication::removeTranslator(&words);
    for (const auto* control : window.findChildren<QWidget*>()) {
        if (control->isVisible() && control->layout() == nullptr) {
            EXPECT_GE(control->width(), control->minimumSizeHint().width())
                << control->objectName().toStdString();
            EXPECT_TRUE(window.rect().contains(
                QRect(control->mapTo(&window, QPoint(0, 0)), control->size())))
                << control->objectName().toStdString();
        }
    }
    const int height = window.height();
    const std::string sentence =
        "Another program holds this combination, so that it cannot be used here until it is let "
        "go. Choose another one, or change it there, and then switch the hot key on again.";
    controller->showHotKeyProblem(HotKeyRole::ShowPanel, sentence);
    QApplication::processEvents();
    const QLabel& problem = *window.panelHotKeyProblem;
    EXPECT_EQ(problem.text().toStdString(), sentence);
    EXPECT_GE(problem.height(), problem.heightForWidth(problem.width()));
    EXPECT_GT(window.height(), height);
    EXPECT_FALSE(window.hotKeyProblem->isVisible());
    controller->showHotKeyProblem(HotKeyRole::ShowPanel, "");
    QApplication::processEvents();
    EXPECT_EQ(window.height(), height);
}

}  // namespace
}  // namespace tonquil
