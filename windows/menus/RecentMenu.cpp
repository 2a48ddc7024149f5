// SPDX-License-Identifier: MIT
#include "windows/menus/RecentMenu.h"

#include <QCoreApplication>
#include <QFile>

#include "app/panel/PanelActions.h"
#include "windows/menus/CommonEntries.h"

namespace tonquil {

RecentMenu::RecentMenu(QMenu& menu)
    : QMenu(QCoreApplication::translate("Panel", "Open recent"), &menu), _menu(menu) {
    menu.addMenu(this);
}

void RecentMenu::setActions(PanelActions& actions) {
    QObject::connect(&_menu, &QMenu::aboutToShow, this, [this, &actions] { fill(actions); });
    // A tray that shows the menu itself may not say when it does.
    fill(actions);
}

void RecentMenu::fill(PanelActions& actions) {
    clear();
    for (const std::filesystem::path& file : actions.recentFiles()) {
        QAction* action =
            addAction(CommonEntries::entryText(QFile::decodeName(file.filename().c_str())));
        action->setToolTip(QFile::decodeName(file.c_str()));
        QObject::connect(action, &QAction::triggered, this,
                         [&actions, file] { actions.openFile(file); });
    }
    setEnabled(!isEmpty());
}

}  // namespace tonquil
