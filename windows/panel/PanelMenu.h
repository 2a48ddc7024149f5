// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace tonquil {

class PanelActions;
class RecentMenu;

/// The panel's menu. Its shortcuts work wherever the focus is in the panel.
class PanelMenu : public QMenu {
 public:
    PanelMenu();

    void setActions(PanelActions& actions, QWidget& panel);
    void showUndo(bool canUndo, bool canRedo);
    void showForm(bool isAdvanced, bool isDark, bool hasChannelStrip);
    /// A build of the program may have no web sites.
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _webSite->setVisible(hasSite);
        _boardWebSite->setVisible(hasBoardSite);
    }
    void showRemoteConfiguration(bool isOn) { _remote->setVisible(isOn); }
    void setEditingEnabled(bool enabled) { _reset->setEnabled(enabled); }

 private:
    QAction* _undo;
    QAction* _redo;
    QAction* _open = nullptr;
    RecentMenu* _recent = nullptr;
    QAction* _save = nullptr;
    QAction* _targets = nullptr;
    QAction* _reset = nullptr;
    QMenu* _view = nullptr;
    QAction* _advanced = nullptr;
    QAction* _dark = nullptr;
    QAction* _channelStrip = nullptr;
    QAction* _remote = nullptr;
    QAction* _preferences = nullptr;
    QAction* _webSite = nullptr;
    QAction* _boardWebSite = nullptr;
    QAction* _about = nullptr;
    QAction* _quit = nullptr;
};

}  // namespace tonquil
