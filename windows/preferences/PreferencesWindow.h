// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

#include "app/preferences/HotKeyAssignment.h"
#include "hotkeys/KeyboardLayout.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace tonquil {

class DDHotKeyTextField;
class RadioMatrix;

/// The preferences window before it is connected to anything: three sections of controls. Each
/// control is named after its member. The window is as large as its controls need.
class PreferencesWindow : public QWidget {
 public:
    /// The layout must outlive the window.
    explicit PreferencesWindow(const KeyboardLayout& layout);

    /// Called before the window closes, to ask whether it may.
    void setShouldClose(std::function<bool()> shouldClose) {
        _shouldClose = std::move(shouldClose);
    }
    /// Called after it has closed.
    void setClosed(std::function<void()> closed) { _closed = std::move(closed); }
    /// Shows the controls with which the user gives hot keys their keys.
    void showHotKeyChooser(HotKeyChooser chooser);
    /// Shows or hides the checkbox for keeping the night light; hidden at first.
    void showNightLight(bool isShown) const;
    /// Takes the focus away from the control that has it.
    void clearFirstResponder();

    // All are owned by the window.
    QCheckBox* showAtLaunch;
    QCheckBox* openAtLoginCheckbox;
    QCheckBox* rememberWhenQuitting;
    QCheckBox* ContinuouslyApply;
    /// Why that cannot be chosen; hidden where it can.
    QLabel* continuouslyApplyNote;
    QCheckBox* keepNightLight;
    QCheckBox* advancedPanel;
    QCheckBox* channelStrip;
    QCheckBox* showTargetHints;
    QCheckBox* darkTheme;
    RadioMatrix* affectAllScreens;
    RadioMatrix* toggleApply;
    QLabel* showStatusLabel;
    RadioMatrix* showStatusItem;
    QCheckBox* useHotKey;
    DDHotKeyTextField* hotKeyField;
    /// In the field's place, the keys that the desktop has given.
    QLabel* hotKeyTrigger;
    /// Why the hot key next to it was refused; hidden while empty.
    QLabel* hotKeyProblem;
    QCheckBox* panelHotKey;
    DDHotKeyTextField* panelHotKeyField;
    QLabel* panelHotKeyTrigger;
    QLabel* panelHotKeyProblem;
    /// Where the desktop gives the keys.
    QPushButton* changeHotKeys;
    /// Where there are no hot keys: the commands to bind to keys by hand.
    QLabel* hotKeysByHand;
    QCheckBox* allowRemote;
    /// Why companions cannot reach this computer; below the checkbox that allows them to connect.
    QLabel* remoteProblem;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    void nameControls();
    /// Resizes to fit the controls; they scroll if the screen is not high enough.
    void fit();
    void addGeneral(QVBoxLayout& column) const;
    void addNightLight(QVBoxLayout& column) const;
    void addHotKeys(QVBoxLayout& column) const;
    void addRemote(QVBoxLayout& column) const;

    QScrollArea* _scrollArea;
    std::function<bool()> _shouldClose;
    std::function<void()> _closed;
};

}  // namespace tonquil
