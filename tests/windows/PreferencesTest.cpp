// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>

#include "app/preferences/SettingsKeys.h"
#include "hotkeys/field/DDHotKeyTextField.h"
#include "platform/missing/MissingWindowSystem.h"
#include "tests/app/PlainStore.h"
#include "tests/hotkeys/TableLayout.h"
#include "ui/Accessibility.h"
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

class Preferences : public testing::Test {
 protected:
    void SetUp() override {
        installAccessibleInterfaces();
        store.registerDefaults(registeredDefaults());
    }

    /// Creates and shows a new window.
    PreferencesWindow& open() {
        controller = std::make_unique<TQPrefController>(PreferencesSurroundings{
            store, loginItem, alerts, layout, windowSystem, program, "/home/kim",
            [this](std::string_view line) { log.emplace_back(line); }, 1343});
        controller->showWindow();
        QApplication::processEvents();
        return controller->window();
    }
    [[nodiscard]] PropertyValue stored(const std::string& key) const {
        return store.stored.value(key, PropertyValue());
    }

    PlainStore store;
    FakeLoginItem loginItem;
    ScriptedAlerts alerts;
    TableLayout layout;
    MissingWindowSystem windowSystem;
    std::string program = "/usr/bin/tonquil";
    std::vector<std::string> log;
    std::unique_ptr<TQPrefController> controller;
};

TEST_F(Preferences, ShowTheTagOfAChoiceThatIsStoredAsABooleanOrANumber) {
    for (const auto& [name, key] : {std::pair("affectAllScreens", "AffectAllScreens"),
                                    {"toggleApply", "ToggleApply"},
                                    {"showStatusItem", "ShowStatusItem"}}) {
        SCOPED_TRACE(key);
        // Only the status item is read as a number, for which there may be no cell.
        for (const auto& [value, tag] :
             {std::pair(PropertyValue(2), name == std::string("showStatusItem") ? 0 : 1),
              {1, 1},
              {false, 0}}) {
            store.stored[key] = value;
            const auto* matrix = open().findChild<RadioMatrix*>(QString::fromLatin1(name));
            EXPECT_EQ(matrix->selectedTag(), tag);
        }
    }
}

TEST_F(Preferences, FollowExternalChangesOnlyWhereBound) {
    PreferencesWindow& window = open();
    EXPECT_TRUE(effectiveAppearance(window).isDark);
    for (const std::string key :
         {"DarkTheme", "ShowAtLaunch", "ShowTargetHints", "KeepNightLight"}) {
        store.stored[key] = false;
    }
    store.stored["AllowRemote"] = true;
    store.tell();
    EXPECT_FALSE(window.darkTheme->isChecked());
    EXPECT_FALSE(effectiveAppearance(window).isDark);
    EXPECT_FALSE(window.showTargetHints->isChecked());
    EXPECT_FALSE(window.keepNightLight->isChecked());
    EXPECT_FALSE(window.keepNightLight->isVisible()) << "nothing takes it away";
    EXPECT_TRUE(window.allowRemote->isChecked());
    EXPECT_TRUE(window.showAtLaunch->isChecked());
    EXPECT_THAT(store.written, IsEmpty());
    controller->update();
    EXPECT_FALSE(window.showAtLaunch->isChecked());
    for (QCheckBox* const box : {window.allowRemote, window.showAtLaunch}) {
        store.written.clear();
        box->click();
        EXPECT_EQ(store.written.size(), 1U) << "A click writes one setting.";
        QAccessible::queryAccessibleInterface(box)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(store.written.size(), 2U) << "So does a screen reader.";
    }
    EXPECT_EQ(stored("AllowRemote"), true);
}

TEST_F(Preferences, StartRecordingWhenMissingHotKeyIsEnabled) {
    int recordings = 0;
    PreferencesWindow& window = open();
    controller->setRecordingHooks([&] { ++recordings; }, [&] { recordings += 10; });
    window.panelHotKey->click();
    EXPECT_EQ(window.focusWidget(), window.panelHotKeyField);
    EXPECT_TRUE(window.panelHotKeyField->isRecording());
    EXPECT_EQ(recordings, 1);
    store.written.clear();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Q, Qt::MetaModifier, KEY_Q + 8, 0, 0);
    QApplication::sendEvent(window.panelHotKeyField, &event);
    EXPECT_THAT(store.written, ElementsAre("PanelHotKeyCode", "PanelHotKeyModifiers"));
    EXPECT_EQ(stored("PanelHotKeyCode"), 12);
    EXPECT_EQ(stored("PanelHotKeyModifiers"), 0x100000);
    EXPECT_EQ(window.focusWidget(), &window);
    EXPECT_EQ(recordings, 11);

    // Off: no control keeps the focus. On again: there is a hot key, so the focus stays where it
    // is.
    window.showAtLaunch->setFocus();
    window.panelHotKey->click();
    EXPECT_EQ(window.focusWidget(), &window);
    window.showAtLaunch->setFocus();
    window.panelHotKey->click();
    EXPECT_EQ(window.focusWidget(), window.showAtLaunch);

    window.useHotKey->click();
    EXPECT_TRUE(window.hotKeyField->isRecording());
    window.close();
    EXPECT_FALSE(window.hotKeyField->isRecording());
    controller->showWindow();
    EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(Preferences, ShowKeysThatDesktopGivesAndRecordNone) {
    PreferencesWindow& window = open();
    controller->showHotKeyAssignment(
        {.chooser = HotKeyChooser::Desktop, .triggers = {{HotKeyRole::ShowPanel, "Hyper+1"}}});
    EXPECT_EQ(window.panelHotKeyTrigger->text(), QString());
    window.panelHotKey->click();
    EXPECT_EQ(window.panelHotKeyTrigger->text(), QStringLiteral("Hyper+1"));
    EXPECT_FALSE(window.panelHotKeyField->isVisible() || window.panelHotKeyField->isRecording());
    EXPECT_FALSE(window.hotKeysByHand->isVisible());
    controller->showHotKeyAssignment({.chooser = HotKeyChooser::Nobody});
    EXPECT_FALSE(window.panelHotKey->isVisible() || window.panelHotKeyTrigger->isVisible());
    EXPECT_THAT(window.hotKeysByHand->text().toStdString(),
                testing::HasSubstr("tonquil --show-panel"));
}

TEST_F(Preferences, ReadLowBitsOfHotKeyAndStoreZerosForRemovedOne) {
    store.stored.update({{"UseHotKeyCode", 0x1000C}, {"UseHotKeyModifiers", 0x100000}});
    DDHotKeyTextField& field = *open().hotKeyField;
    EXPECT_EQ(field.hotKey()->keyCode(), 12);
    EXPECT_EQ(field.hotKey()->modifierFlags(), 0x100000);
    field.findChild<QAbstractButton*>()->click();
    EXPECT_EQ(stored("UseHotKeyCode"), 0);
    EXPECT_EQ(stored("UseHotKeyModifiers"), 0);
}

TEST_F(Preferences, ShowActualLoginItemAndAdviseOnProgramLocation) {
    const auto click = [this] {
        QCheckBox& box = *controller->window().openAtLoginCheckbox;
        box.click();
        return box.isChecked();
    };
    open();
    EXPECT_TRUE(click());
    EXPECT_TRUE(loginItem.isOn);
    loginItem.isStuck = true;
    EXPECT_TRUE(click());
    EXPECT_THAT(log, ElementsAre("Failed to set login item enabled to 0", "It is stuck."));
    loginItem.isStuck = false;
    EXPECT_FALSE(click());
    EXPECT_THAT(alerts.shown, IsEmpty());
    EXPECT_THAT(store.written, IsEmpty());

    program = "/home/kim/Downloads/tonquil";
    open();
    EXPECT_TRUE(click());
    EXPECT_TRUE(loginItem.isOn);
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_THAT(alerts.shown.front().message, testing::HasSubstr("more reliable"));
    EXPECT_TRUE(open().openAtLoginCheckbox->isChecked());
    EXPECT_FALSE(click());
    EXPECT_EQ(alerts.shown.size(), 1U);
}

TEST_F(Preferences, ShowWhatIsWrongOnlyWhileItIs) {
    PreferencesWindow& window = open();
    controller->showHotKeyProblem(HotKeyRole::ShowPanel, "It is taken.");
    controller->showRemoteProblem("It is closed.");
    EXPECT_EQ(window.panelHotKeyProblem->text().toStdString(), "It is taken.");
    EXPECT_EQ(window.remoteProblem->text().toStdString(), "It is closed.");
    EXPECT_FALSE(window.hotKeyProblem->isVisible());
    controller->showHotKeyProblem(HotKeyRole::ShowPanel, "");
    controller->showRemoteProblem("");
    EXPECT_FALSE(window.panelHotKeyProblem->isVisible() || window.remoteProblem->isVisible());
}

}  // namespace
}  // namespace tonquil
