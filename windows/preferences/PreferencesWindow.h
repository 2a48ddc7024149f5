// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>

#include "hotkeys/KeyboardLayout.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace tonquil {

class DDHotKeyTextField;
class RadioMatrix;

/// The preferences window as it is laid out: three sections of controls that nothing is joined to
/// yet. Each control is named after its member. The window is as large as its controls need.
class PreferencesWindow : public QWidget {
 public:
    /// The layout must outlive the window.
    explicit PreferencesWindow(const KeyboardLayout& layout);

    /// Asked before the window closes.
    void setShouldClose(std::function<bool()> shouldClose) {
        _shouldClose = std::move(shouldClose);
    }
    /// Called after it has closed.
    void setClosed(std::function<void()> closed) { _closed = std::move(closed); }
    /// Takes the focus from whichever control has it.
    void clearFirstResponder();

    // All are owned by the window.
    QCheckBox* showAtLaunch;
    QCheckBox* openAtLoginCheckbox;
    QCheckBox* rememberWhenQuitting;
    QCheckBox* ContinuouslyApply;
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
    /// Why the hot key beside it was refused; hidden while it has nothing to say.
    QLabel* hotKeyProblem;
    QCheckBox* panelHotKey;
    DDHotKeyTextField* panelHotKeyField;
    QLabel* panelHotKeyProblem;
    QCheckBox* allowRemote;
    /// Why companions cannot reach this computer, below the box that lets them in.
    QLabel* remoteProblem;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    void nameControls();
    /// As large as the controls; where the screen is not as high, they scroll.
    void fit();
    void addGeneral(QVBoxLayout& column) const;
    void addHotKeys(QVBoxLayout& column) const;
    void addRemote(QVBoxLayout& column) const;

    QScrollArea* _scrollArea;
    std::function<bool()> _shouldClose;
    std::function<void()> _closed;
};

}  // namespace tonquil
