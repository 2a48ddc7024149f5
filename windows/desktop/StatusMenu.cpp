// SPDX-License-Identifier: MIT
#include "windows/desktop/StatusMenu.h"

#include <QCoreApplication>
#include <utility>

#include "app/panel/PanelActions.h"

namespace tonquil {

StatusMenu::StatusMenu()
    : _statusActiveItem(addAction(QCoreApplication::translate("Panel", "Apply correction"))),
      _showPanel(addAction(QCoreApplication::translate("Panel", "Show panel"))) {
    _statusActiveItem->setCheckable(true);
    _common.addTargets();
    addSeparator();
    _common.addOpen();
    _common.addRecent();
    _common.addSave();
    _common.addPresets();
    addSeparator();
    _common.addPreferences();
    addSeparator();
    _common.addAbout();
    addSeparator();
    _common.addQuit();
}

void StatusMenu::setActions(PanelActions& actions, std::function<void()> showPanel) {
    _common.setActions(actions);
    QObject::connect(_statusActiveItem, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.changeApplyCorrection(isOn); });
    QObject::connect(_showPanel, &QAction::triggered, this,
                     [showPanel = std::move(showPanel)] { showPanel(); });
}

}  // namespace tonquil
