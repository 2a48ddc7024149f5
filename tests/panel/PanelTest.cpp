// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <stdexcept>

#include "platform/missing/MissingWindowSystem.h"
#include "tests/ui/Input.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"
#include "windows/panel/ControlPanel.h"

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
    void changeBlendingMode() override {}
    void changeApplyCorrection(bool /*isOn*/) override {}
    void resetGamma() override {}
    void setSelectedTab(int index) override {
        calls.push_back("tab " + std::to_string(index));
        panel->showTab(index);
    }
    void toggleApplyCorrection() override {}
    void compare(bool /*isHeld*/) override {}
    void setAffectsAllScreens(bool /*affectsAll*/) override {}
    [[nodiscard]] std::vector<PanelDisplay> displays() override { return {}; }
    void editDisplay(DisplayID /*display*/) override {}
    void identifyDisplays() override {}
    void togglePanel() override {}
    void setAdvancedPanel(bool /*advanced*/) override {}
    void setDarkTheme(bool /*dark*/) override {}
    void setChannelStrip(bool /*isShown*/) override {}
    void undo() override {}
    void redo() override {}
    void panelMoved() override {}
    [[nodiscard]] std::optional<PlottedCurves> plottedCurves() override { return std::nullopt; }
    void openTargetWindow() override {}
    void openPreferences() override {}
    void openAboutBox() override {}
    void openWebSite() override {}
    void gammaBoardInfo() override {}
    void loadGamma() override {}
    void saveGamma() override {}
    void openFile(const std::filesystem::path& /*file*/) override {}
    [[nodiscard]] std::vector<std::filesystem::path> recentFiles() const override { return {}; }
    [[nodiscard]] std::vector<PresetEntry> presets() const override { return {}; }
    void openPreset(const std::string& /*name*/) override {}
    void savePreset() override {}
    [[nodiscard]] bool canMakeEditable() override { return false; }
    void makeEditable() override {}
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

    /// The control of a class, identified by its accessible name if there are several.
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
    MissingWindowSystem windowSystem;
    RecordedActions actions;
    ControlPanel panel{windowSystem};
};

TEST_F(Panel, ShowsEachValueInItsOwnControl) {
    PanelValues values;
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        values.sliders.at(index) = 0.25F + 0.0625F * static_cast<float>(index);
    }
    values.blendingMode = KVBlendingModeAbsolute;
    panel.setValues(values);
    EXPECT_EQ(panel.values(), values);
    EXPECT_EQ(slider(QStringLiteral("Master, White point")).floatValue(), values.sliders[2]);
    EXPECT_EQ(field(QStringLiteral("Blue, Middle point")).floatValue(), values.sliders[8]);
    EXPECT_THAT(actions.calls, IsEmpty()) << "Showing is no edit.";
    auto* const spoken = QAccessible::queryAccessibleInterface(&control<QComboBox>());
    EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), "Blending");
    EXPECT_EQ(spoken->text(QAccessible::Value).toStdString(), "Absolute");
    // Neither a value beyond the range nor a mode missing from the menu is lost.
    values[PanelSlider::MiddleRed] = 2.5F;
    values.blendingMode = 7;
    panel.setValues(values);
    EXPECT_EQ(panel.values(), values);
    panel.setValues({});
    EXPECT_LT(slider(QStringLiteral("Red, Middle point")).maxValue(), 2);
}

TEST_F(Panel, ReportsMovedControlAndLinking) {
    pressKey(slider(QStringLiteral("Green, Middle point")), Qt::Key_Up);
    pressKey(field(QStringLiteral("Blue, Middle point")), Qt::Key_Down);
    pressKey(field(QStringLiteral("Master, Middle point")), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_THAT(actions.calls, ElementsAre("apply 7", "apply 8"));
    EXPECT_NEAR(panel.values()[PanelSlider::MiddleGreen], 1.01, 1e-6);
    EXPECT_NEAR(panel.values()[PanelSlider::MiddleBlue], 0.99, 1e-6);
}

TEST_F(Panel, DisablesEditingAndRestoresFocus) {
    TQNumericTextField& master = field(QStringLiteral("Master, Middle point"));
    ASSERT_EQ(panel.focusWidget(), &master);
    panel._setControlsEnabled(false);
    EXPECT_FALSE(slider(QStringLiteral("Blue, White point")).isEnabled());
    EXPECT_FALSE(master.isEnabled());
    EXPECT_EQ(panel.focusWidget(), &panel) << "On another control the next key would act.";
    EXPECT_TRUE(control<QCheckBox>().isEnabled()) << "It edits no curve.";
    panel._setControlsEnabled(true);
    EXPECT_TRUE(master.isEnabled());
    EXPECT_EQ(panel.focusWidget(), &master);
    // Selecting another tab moves the focus to the same channel there.
    field(QStringLiteral("Green, Middle point")).setFocus();
    control<TQVibrantMatrix>().cell(0)->click();
    EXPECT_THAT(actions.calls, ElementsAre("tab 0"));
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Green, Black point")));
    EXPECT_FALSE(field(QStringLiteral("Green, Middle point")).isVisible());
}

TEST_F(Panel, KeepsFocusVisibleInCompactForm) {
    const Rectangle advanced = panel.frame();
    field(QStringLiteral("Red, Middle point")).setFocus();
    panel.setAccessibilityOptions({.reduceMotion = true});
    panel._setAdvancedPanel(false);
    EXPECT_LT(panel.height(), 150);
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Master, Middle point")));
    for (int count = 0; count < 30; ++count) {
        pressKey(*panel.focusWidget(), Qt::Key_Tab);
        EXPECT_LT(panel.focusWidget()->mapTo(&panel, QPoint()).y(), panel.height());
    }
    // The channel strip keeps its channel when preferences change.
    field(QStringLiteral("Red, Middle point")).setFocus();
    panel._setAdvancedPanel(false);
    EXPECT_EQ(panel.focusWidget(), &field(QStringLiteral("Red, Middle point")));
    panel._setAdvancedPanel(true);
    EXPECT_EQ(panel.frame(), advanced);
}

}  // namespace
}  // namespace tonquil
