// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>

#include "app/panel/PanelControls.h"
#include "windows/menus/DisplayMenu.h"

class QMenu;
class QToolButton;

namespace tonquil {

/// The panel's title strip: moves the window, names the edited displays, and holds the window
/// buttons.
class TitleStrip : public QWidget {
 public:
    explicit TitleStrip(QMenu& menu, QWidget* parent = nullptr);

    void showSubject(const PanelSubject& subject);
    /// For the menu of displays.
    void setActions(PanelActions& actions) { _subjectMenu->setActions(actions); }
    /// Called when the strip is double-clicked.
    void setFormAction(std::function<void()> action) { _switchForm = std::move(action); }
    /// Shows or hides a sign that triggers the remote-configuration action.
    void showRemoteConfiguration(bool isOn);
    /// Shows a sign explaining why changes are not saved; none if the sentence is empty.
    void showStorageProblem(const QString& sentence);
    void setRemoteAction(std::function<void()> action) { _openRemote = std::move(action); }
    void setCloseAction(std::function<void()> action) { _close = std::move(action); }
    /// Called at each drag to find out whether a window manager can move the window.
    void setHasWindowManager(std::function<bool()> question) {
        _hasWindowManager = std::move(question);
    }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void beginMove(const QPoint& pointer);
    void continueMove(const QPoint& pointer);
    /// Returns whether the press has become a drag.
    bool drag(const QMouseEvent& move);
    void updateTitle();

    QToolButton* _closeButton;
    QToolButton* _subjectButton;
    QToolButton* _storageSign;
    QToolButton* _remoteButton;
    QToolButton* _menuButton;
    DisplayMenu* _subjectMenu;
    QString _title;
    std::function<void()> _switchForm;
    std::function<void()> _close;
    std::function<void()> _openRemote;
    std::function<bool()> _hasWindowManager;
    /// Where the strip or the name button was pressed, and whether that has become a drag.
    QPoint _pressedAt;
    bool _isDragged = false;
    /// Where the pointer grabbed the window, while it is moved without a window manager.
    std::optional<QPoint> _hold;
};

}  // namespace tonquil
