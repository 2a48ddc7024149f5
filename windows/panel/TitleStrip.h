// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>
#include <functional>
#include <optional>

#include "app/panel/PanelControls.h"

class QAction;
class QMenu;
class QToolButton;

namespace tonquil {

/// The upper edge of the panel: moves the window, names what is edited, and holds the buttons of
/// the window itself.
class TitleStrip : public QWidget {
 public:
    explicit TitleStrip(QMenu& menu, QWidget* parent = nullptr);

    void showSubject(const PanelSubject& subject);
    /// Called with true for all displays and false for the one under the panel.
    void setSubjectAction(std::function<void(bool)> action) { _chooseSubject = std::move(action); }
    /// Shows a sign that opens what the action opens.
    void showRemoteConfiguration(bool isOn);
    /// Shows a sign that tells why changes are not saved; none where the sentence is empty.
    void showStorageProblem(const QString& sentence);
    void setRemoteAction(std::function<void()> action) { _openRemote = std::move(action); }
    void setCloseAction(std::function<void()> action) { _close = std::move(action); }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void buildSubjectMenu();
    void updateIcons();
    void updateTitle();

    QToolButton* _closeButton;
    QToolButton* _subjectButton;
    QToolButton* _storageSign;
    QToolButton* _remoteButton;
    QToolButton* _menuButton;
    QMenu* _subjectMenu = nullptr;
    QAction* _thisDisplay = nullptr;
    QAction* _allDisplays = nullptr;
    QString _title;
    std::function<void(bool)> _chooseSubject;
    std::function<void()> _close;
    std::function<void()> _openRemote;
    /// Where the pointer took hold of the window, while it is moved without a window manager.
    std::optional<QPoint> _hold;
};

}  // namespace tonquil
