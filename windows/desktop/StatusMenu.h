// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <functional>

#include "windows/menus/CommonEntries.h"

namespace tonquil {

/// The status icon's menu, for using the program without its panel.
class StatusMenu : public QMenu {
 public:
    StatusMenu();

    void setActions(PanelActions& actions, std::function<void()> showPanel);
    void showCorrection(bool isOn) { _statusActiveItem->setChecked(isOn); }
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _common.showWebSites(hasSite, hasBoardSite);
    }
    void showRemoteConfiguration(bool isOn) { _common.showRemoteConfiguration(isOn); }

 private:
    CommonEntries _common{*this};
    QAction* _statusActiveItem;
    QAction* _showPanel;
};

}  // namespace tonquil
