// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>
#include <stdexcept>

#include "platform/missing/MissingWindowSystem.h"
#include "ui/CurvePlot.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"
#include "windows/panel/ChannelStrip.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/PanelFileDialogs.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the panel asks for, in order.
class RecordedActions final : public PanelActions {
 public:
    void applyGamma(PanelSlider sender, bool isLinked) override {
        calls.push_back("apply " + std::to_string(static_cast<int>(sender)) +
                        (isLinked ? " linked" : ""));
    }
    void endEdit() override {}
    void changeBlendingMode() override { calls.emplace_back("mode"); }
    void changeApplyCorrection(bool isOn) override {
        calls.emplace_back(isOn ? "correct" : "do not correct");
    }
    void resetGamma() override { calls.emplace_back("reset"); }
    void setSelectedTab(int index) override {
        calls.push_back("tab " + std::to_string(index));
        panel->showTab(index);
    }
    void setAffectsAllScreens(bool affectsAll) override {
        calls.emplace_back(affectsAll ? "all" : "this");
    }
    void setAdvancedPanel(bool /*advanced*/) override {}
    void setDarkTheme(bool /*dark*/) override {}
    void setChannelStrip(bool /*isShown*/) override {}
    void undo() override { calls.emplace_back("undo"); }
    void redo() override { calls.emplace_back("redo"); }
    void panelMoved() override {}
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() override { return std::nullopt; }
    void openTargetWindow() override { calls.emplace_back("targets"); }
    void openPreferences() override { calls.emplace_back("preferences"); }
    void openAboutBox() override {}
    void openWebSite() override {}
    void gammaBoardInfo() override {}
    void loadGamma() override {}
    void saveGamma() override {}
    void openFile(const std::filesystem::path& file) override { calls.push_back(file); }
    [[nodiscard]] std::vector<std::filesystem::path> recentFiles() const override { return {}; }
    void quit() override {}

    std::vector<std::string> calls;
    ControlPanel* panel = nullptr;
};

class Panel : public testing::Test {
 protected:
    Panel() {
        actions.panel = &panel;
        panel.setActions(actions);
        panel.setFrameOrigin({100, 100});
        panel.showTab(1);
        panel.makeKeyAndOrderFront();
        QCoreApplication::processEvents();
        panel.observeFirstResponder();
        panel.focusMasterOfSelectedTab();
    }

    /// The control of a class, and with the name that a screen reader says if there are several.
    template <typename Control>
    [[nodiscard]] Control& control(const QString& name = {}) const {
        for (QWidget* each : panel.findChildren<QWidget*>()) {
            auto* found = dynamic_cast<Control*>(each);
            if (found != nullptr && (name.isEmpty() || found->accessibleName() == name)) {
                return *found;
            }
        }
        throw std::runtime_error("There is no " + name.toStdString());
    }
    [[nodiscard]] TQSlider& slider(const QString& name) { return control<TQSlider>(name); }
    [[nodiscard]] TQNumericTextField& field(const QString& name) {
        return control<TQNumericTextField>(name);
    }
    static void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {}) {
        QKeyEvent press(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&widget, &press);
    }
    MissingWindowSystem windowSystem;
    RecordedActions actions;
    ControlPanel panel{windowSystem};
};

TEST_F(Panel, ShowsEveryValueInItsOwnControl) {
    PanelValues values;
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        values.sliders.at(index) = 0.25F + 0.0625F * static_cast<float>(index);
    }
    values.blendingMode = KVBlendingModeAbsolute;
    panel.setValues(values);
    EXPECT_EQ(panel.values(), values);
    EXPECT_EQ(slider(QStringLiteral("Master, White point")).floatValue(), values.sliders[2]);
    EXPECT_EQ(field(QStringLiteral("Blue, Middle point")).floatValue(), values.sliders[8]);
    EXPECT_EQ(field(QStringLiteral("Red, White point")).floatValue(), values.sliders[9]);
    EXPECT_THAT(actions.calls, IsEmpty()) << "Showing is no edit.";
    // Neither a value beyond the range nor a mode that is not in the menu is lost.
    values[PanelSlider::MiddleRed] = 2.5F;
    values.blendingMode = 7;
    panel.setValues(values);
    EXPECT_EQ(panel.values(), values);
    values[PanelSlider::MiddleRed] = 1;
    panel.setValues(values);
    EXPECT_LT(slider(QStringLiteral("Red, Middle point")).maxValue(), 2);
}

TEST_F(Panel, TellsWhichControlWasMovedAndWhetherItIsLinked) {
    press(slider(QStringLiteral("Green, Middle point")), Qt::Key_Up);
    press(field(QStringLiteral("Blue, Middle point")), Qt::Key_Down);
    press(field(QStringLiteral("Master, Middle point")), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_THAT(actions.calls, ElementsAre("apply 7", "apply 8"));
    EXPECT_NEAR(panel.values()[PanelSlider::MiddleGreen], 1.01, 1e-6);
    EXPECT_NEAR(panel.values()[PanelSlider::MiddleBlue], 0.99, 1e-6);
}

TEST_F(Panel, DisablesWhatEditsAndGivesTheFocusBack) {
    TQNumericTextField& master = field(QStringLiteral("Master, Middle point"));
    ASSERT_EQ(panel.focusWidget(), &master);
    panel._setControlsEnabled(false);
    EXPECT_FALSE(slider(QStringLiteral("Blue, White point")).isEnabled());
    EXPECT_FALSE(master.isEnabled());
    EXPECT_TRUE(control<QCheckBox>().isEnabled()) << "It edits no curve.";
    panel._setControlsEnabled(true);
    EXPECT_TRUE(master.isEnabled());
    EXPECT_EQ(panel.focusWidget(), &master);
}

TEST_F(Panel, TheCompactFormIsCutOffAndOutOfReach) {
    const Rectangle advanced = panel.frame();
    TQNumericTextField& red = field(QStringLiteral("Red, Middle point"));
    red.setFocus();
    panel.setAccessibilityOptions({.reduceMotion = true});
    panel._setAdvancedPanel(false);
    EXPECT_EQ(panel.frame().y, advanced.y);
    EXPECT_EQ(panel.height(), panel.minimumHeight());
    EXPECT_LT(panel.height(), 150);
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Master, Middle point")));
    for (int count = 0; count < 30; ++count) {
        press(*panel.focusWidget(), Qt::Key_Tab);
        EXPECT_LT(panel.focusWidget()->mapTo(&panel, QPoint()).y(), panel.height());
    }
    panel._setAdvancedPanel(true);
    EXPECT_EQ(panel.frame(), advanced);
    EXPECT_EQ(panel.height(), panel.maximumHeight());
}

TEST_F(Panel, AnotherTabTakesTheFocusToTheSameChannel) {
    field(QStringLiteral("Green, Middle point")).setFocus();
    control<TQVibrantMatrix>().cell(0)->click();
    EXPECT_THAT(actions.calls, ElementsAre("tab 0"));
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Green, Black point")));
    EXPECT_TRUE(field(QStringLiteral("Green, Black point")).isVisible());
    EXPECT_FALSE(field(QStringLiteral("Green, Middle point")).isVisible());
}

TEST_F(Panel, UndoAndRedoAreThePanelsUnlessSomebodyIsTyping) {
    panel.showUndo(true, true);
    const auto pressUndo = [](QWidget& widget) {
        QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
        override.ignore();
        QCoreApplication::sendEvent(&widget, &override);
        return !override.isAccepted();
    };
    TQNumericTextField& master = field(QStringLiteral("Master, Middle point"));
    EXPECT_TRUE(pressUndo(master));
    QKeyEvent typed(QEvent::KeyPress, Qt::Key_2, Qt::NoModifier, QStringLiteral("2"));
    QCoreApplication::sendEvent(&master, &typed);
    EXPECT_FALSE(pressUndo(master));
}

TEST_F(Panel, TheStripStandsForTheChannelOfTheFocusedControl) {
    panel.showChannelStrip(true);
    TQSlider& mirror = slider(QStringLiteral("Focused value"));
    PanelValues values;
    values[PanelSlider::MiddleBlue] = 0.75F;
    values[PanelSlider::WhiteBlue] = 0.5F;
    panel.setValues(values);
    const auto picked = [this] {
        std::string names;
        for (const QToolButton* button : control<ChannelStrip>().findChildren<QToolButton*>()) {
            names += button->isChecked() ? button->accessibleName().toStdString() : "";
        }
        return names;
    };
    field(QStringLiteral("Blue, Middle point")).setFocus();
    EXPECT_EQ(picked(), "Blue");
    EXPECT_EQ(mirror.floatValue(), 0.75F);
    press(mirror, Qt::Key_Up);
    EXPECT_THAT(actions.calls, ElementsAre("apply 8"));
    EXPECT_NEAR(panel.values()[PanelSlider::MiddleBlue], 0.76, 1e-6);

    // The picker moves the focus; picking what is picked changes nothing.
    control<QToolButton>(QStringLiteral("Red")).click();
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Red, Middle point")));
    control<QToolButton>(QStringLiteral("Red")).click();
    EXPECT_EQ(picked(), "Red");

    // Elsewhere there is nothing to stand for, once the focus has settled.
    control<QComboBox>().setFocus();
    EXPECT_EQ(picked(), "");
    EXPECT_FALSE(mirror.isEnabled());
    EXPECT_TRUE(mirror.isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(mirror.isVisible());
    field(QStringLiteral("Blue, Middle point")).setFocus();
    EXPECT_TRUE(mirror.isVisible());
    EXPECT_TRUE(mirror.isEnabled());
}

TEST_F(Panel, TakesOneLocalFileThatIsDroppedOnIt) {
    const QUrl local = QUrl::fromLocalFile(QStringLiteral("/a folder/b%20&c.tonquil"));
    const QUrl remote(QStringLiteral("https://example.org/a.tonquil"));
    for (const QList<QUrl>& urls : {QList<QUrl>{local}, {local, local}, {remote}, {}}) {
        actions.calls.clear();
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&panel, &enter);
        const bool isTaken = urls == QList<QUrl>{local};
        EXPECT_EQ(enter.isAccepted(), isTaken);
        if (isTaken) {
            QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&panel, &drop);
            EXPECT_THAT(actions.calls, ElementsAre("/a folder/b%20&c.tonquil"));
        }
    }
}

TEST_F(Panel, HasOneFileDialogAtATimeButEveryAlert) {
    PanelFileDialogs dialogs(panel);
    const auto countOfDialogs = [this] { return panel.findChildren<QDialog*>().size(); };
    dialogs.chooseFileToSave(SettingsFormat::MultiDisplay,
                             [](const std::filesystem::path&, SettingsFormat) {});
    EXPECT_EQ(countOfDialogs(), 1);
    dialogs.chooseFileToOpen([](const std::filesystem::path&) {});
    EXPECT_EQ(countOfDialogs(), 1);
    dialogs.alert("Saving failed", "Could not save settings at this location.", {});
    EXPECT_EQ(panel.findChildren<QMessageBox*>().size(), 1);
    panel.findChild<QDialog*>()->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    dialogs.chooseFileToOpen([](const std::filesystem::path&) {});
    EXPECT_EQ(countOfDialogs(), 2) << "The alert, and the dialog that came after the first.";
}

TEST_F(Panel, SaysWhatIsEditedAndWhyItCannotBe) {
    panel.showSubject({.title = "DP-1 \u00B7 Dell U2720Q", .obstacle = "It has no gamma ramp."});
    EXPECT_EQ(control<CurvePlot>().message(), QStringLiteral("It has no gamma ramp."));
    EXPECT_EQ(control<QToolButton>(QStringLiteral("Edited: DP-1 \u00B7 Dell U2720Q"))
                  .accessibleDescription(),
              QStringLiteral("It has no gamma ramp."));
}

}  // namespace
}  // namespace tonquil
