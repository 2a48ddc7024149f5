// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include "windows/menus/CommonEntries.h"

namespace tonquil {

/// The panel's menu. Its shortcuts work wherever the focus is in the panel.
class PanelMenu : public QMenu {
 public:
    PanelMenu();

    void setActions(PanelActions& actions, QWidget& panel);
    void showUndo(bool canUndo, bool canRedo);
    void showForm(bool isAdvanced, bool isDark, bool hasChannelStrip);
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _common.showWebSites(hasSite, hasBoardSite);
    }
    void showRemoteConfiguration(bool isOn) { _common.showRemoteConfiguration(isOn); }
    void setEditingEnabled(bool enabled) { _reset->setEnabled(enabled); }

 private:
    CommonEntries _common{*this};
    QAction* _undo;
    QAction* _redo;
    QAction* _makeEditable = nullptr;
    QAction* _reset = nullptr;
    QMenu* _view = nullptr;
    QAction* _advanced = nullptr;
    QAction* _dark = nullptr;
    QAction* _channelStrip = nullptr;
    /// Those that have shortcuts.
    QList<QAction*> _shortcuts;
};

}  // namespace tonquil
