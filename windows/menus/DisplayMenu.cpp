// SPDX-License-Identifier: MIT
#include "windows/menus/DisplayMenu.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include "app/panel/PanelActions.h"

namespace tonquil {

void DisplayMenu::setActions(PanelActions& actions) {
    QObject::connect(this, &QMenu::aboutToShow, this, [this, &actions] { fill(actions); });
}

void DisplayMenu::fill(PanelActions& actions) {
    clear();
    _choices = std::make_unique<QActionGroup>(nullptr);
    int number = 0;
    for (const PanelDisplay& display : actions.displays()) {
        addDisplay(actions, display, ++number);
    }
    addSeparator();
    QAction* all = addAction(
        QCoreApplication::translate("Panel", "All displays: an edit replaces the curve of each"));
    _choices->addAction(all);
    all->setCheckable(true);
    all->setChecked(_areAll);
    QObject::connect(all, &QAction::triggered, this,
                     [&actions] { actions.setAffectsAllScreens(true); });
    addSeparator();
    QObject::connect(addAction(QCoreApplication::translate("Panel", "Identify displays")),
                     &QAction::triggered, this, [&actions] { actions.identifyDisplays(); });
}

// On Wayland only the compositor moves windows.
void DisplayMenu::addDisplay(PanelActions& actions, const PanelDisplay& display, int number) {
    static const bool canMove =
        !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    // An unescaped ampersand would underline the next character.
    const QString name =
        QString::fromStdString(display.title).replace(QLatin1Char('&'), QStringLiteral("&&"));
    QAction* action = addAction(QStringLiteral("%1: %2").arg(number).arg(name));
    _choices->addAction(action);
    action->setCheckable(true);
    action->setChecked(!_areAll && display.isUnderPanel);
    action->setEnabled(canMove || display.isUnderPanel);
    QObject::connect(action, &QAction::triggered, this,
                     [&actions, chosen = display.display] { actions.editDisplay(chosen); });
}

}  // namespace tonquil
