// SPDX-License-Identifier: MIT
#include "windows/desktop/StatusMenu.h"

#include <QCoreApplication>

#include "app/panel/PanelActions.h"
#include "windows/panel/RecentMenu.h"

namespace tonquil {

StatusMenu::StatusMenu()
    : _statusActiveItem(addAction(QCoreApplication::translate("Panel", "Apply correction"))),
      _showPanel(addAction(QCoreApplication::translate("Panel", "Show panel"))),
      _targets(addAction(QCoreApplication::translate("Panel", "Show targets"))) {
    _statusActiveItem->setCheckable(true);
    addSeparator();
    _open = addAction(QCoreApplication::translate("Panel", "Open settings\u2026"));
    _recent = new RecentMenu(*this);
    _save = addAction(QCoreApplication::translate("Panel", "Save settings\u2026"));
    addSeparator();
    _remote = addAction(QCoreApplication::translate("Panel", "Remote configuration is on"));
    _remote->setVisible(false);
    _preferenceStatusItem = addAction(QCoreApplication::translate("Panel", "Preferences\u2026"));
    addSeparator();
    _webSite = addAction(QCoreApplication::translate("Panel", "Tonquil on the web"));
    _boardWebSite = addAction(QCoreApplication::translate("Panel", "About calibration targets"));
    _about = addAction(QCoreApplication::translate("Panel", "About Tonquil"));
    addSeparator();
    _quit = addAction(QCoreApplication::translate("Panel", "Quit"));
}

void StatusMenu::setActions(PanelActions& actions, std::function<void()> showPanel) {
    const auto onTrigger = [this](QAction* action, auto call) {
        QObject::connect(action, &QAction::triggered, this, std::move(call));
    };
    onTrigger(_statusActiveItem, [&actions](bool isOn) { actions.changeApplyCorrection(isOn); });
    onTrigger(_showPanel, [showPanel = std::move(showPanel)] { showPanel(); });
    onTrigger(_targets, [&actions] { actions.openTargetWindow(); });
    onTrigger(_open, [&actions] { actions.loadGamma(); });
    _recent->setActions(actions);
    onTrigger(_save, [&actions] { actions.saveGamma(); });
    onTrigger(_remote, [&actions] { actions.openPreferences(); });
    onTrigger(_preferenceStatusItem, [&actions] { actions.openPreferences(); });
    onTrigger(_webSite, [&actions] { actions.openWebSite(); });
    onTrigger(_boardWebSite, [&actions] { actions.gammaBoardInfo(); });
    onTrigger(_about, [&actions] { actions.openAboutBox(); });
    onTrigger(_quit, [&actions] { actions.quit(); });
}

}  // namespace tonquil
