// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>

namespace tonquil {

class PanelActions;
class RecentMenu;

/// The status icon's menu, for using the program without its panel.
class StatusMenu : public QMenu {
 public:
    StatusMenu();

    void setActions(PanelActions& actions, std::function<void()> showPanel);
    void showCorrection(bool isOn) { _statusActiveItem->setChecked(isOn); }
    /// A build of the program may have no web sites.
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _webSite->setVisible(hasSite);
        _boardWebSite->setVisible(hasBoardSite);
    }
    void showRemoteConfiguration(bool isOn) { _remote->setVisible(isOn); }

 private:
    QAction* _statusActiveItem;
    QAction* _showPanel;
    QAction* _targets;
    QAction* _open = nullptr;
    RecentMenu* _recent = nullptr;
    QAction* _save = nullptr;
    QAction* _remote = nullptr;
    QAction* _preferenceStatusItem = nullptr;
    QAction* _webSite = nullptr;
    QAction* _boardWebSite = nullptr;
    QAction* _about = nullptr;
    QAction* _quit = nullptr;
};

}  // namespace tonquil
