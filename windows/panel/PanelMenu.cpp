// SPDX-License-Identifier: MIT
#include "windows/panel/PanelMenu.h"

#include <QCoreApplication>

#include "app/panel/PanelActions.h"
#include "windows/panel/RecentMenu.h"

namespace tonquil {

PanelMenu::PanelMenu()
    : _undo(addAction(QCoreApplication::translate("Panel", "Undo"))),
      _redo(addAction(QCoreApplication::translate("Panel", "Redo"))) {
    _undo->setShortcut(QKeySequence::Undo);
    _redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    addSeparator();
    _open = addAction(QCoreApplication::translate("Panel", "Open settings\u2026"));
    _open->setShortcut(QKeySequence::Open);
    _recent = new RecentMenu(*this);
    _save = addAction(QCoreApplication::translate("Panel", "Save settings\u2026"));
    _save->setShortcut(QKeySequence::Save);
    addSeparator();
    _reset = addAction(QCoreApplication::translate("Panel", "Reset to calibration"));
    addSeparator();
    _targets = addAction(QCoreApplication::translate("Panel", "Show targets"));
    _view = addMenu(QCoreApplication::translate("Panel", "View"));
    _advanced = _view->addAction(QCoreApplication::translate("Panel", "Advanced panel"));
    _dark = _view->addAction(QCoreApplication::translate("Panel", "Dark theme"));
    _channelStrip = _view->addAction(QCoreApplication::translate("Panel", "Channel strip"));
    for (QAction* action : {_advanced, _dark, _channelStrip}) {
        action->setCheckable(true);
    }
    addSeparator();
    _remote = addAction(QCoreApplication::translate("Panel", "Remote configuration is on"));
    _remote->setVisible(false);
    _preferences = addAction(QCoreApplication::translate("Panel", "Preferences\u2026"));
    _preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    addSeparator();
    _webSite = addAction(QCoreApplication::translate("Panel", "Tonquil on the web"));
    _boardWebSite = addAction(QCoreApplication::translate("Panel", "About calibration targets"));
    _about = addAction(QCoreApplication::translate("Panel", "About Tonquil"));
    addSeparator();
    _quit = addAction(QCoreApplication::translate("Panel", "Quit"));
    _quit->setShortcut(QKeySequence::Quit);
    showUndo(false, false);
}

void PanelMenu::setActions(PanelActions& actions, QWidget& panel) {
    QObject::connect(_undo, &QAction::triggered, this, [&actions] { actions.undo(); });
    QObject::connect(_redo, &QAction::triggered, this, [&actions] { actions.redo(); });
    QObject::connect(_open, &QAction::triggered, this, [&actions] { actions.loadGamma(); });
    QObject::connect(_save, &QAction::triggered, this, [&actions] { actions.saveGamma(); });
    _recent->setActions(actions);
    QObject::connect(_targets, &QAction::triggered, this,
                     [&actions] { actions.openTargetWindow(); });
    QObject::connect(_reset, &QAction::triggered, this, [&actions] { actions.resetGamma(); });
    QObject::connect(_advanced, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setAdvancedPanel(isOn); });
    QObject::connect(_dark, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setDarkTheme(isOn); });
    QObject::connect(_channelStrip, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setChannelStrip(isOn); });
    for (QAction* action : {_remote, _preferences}) {
        QObject::connect(action, &QAction::triggered, this,
                         [&actions] { actions.openPreferences(); });
    }
    QObject::connect(_webSite, &QAction::triggered, this, [&actions] { actions.openWebSite(); });
    QObject::connect(_boardWebSite, &QAction::triggered, this,
                     [&actions] { actions.gammaBoardInfo(); });
    QObject::connect(_about, &QAction::triggered, this, [&actions] { actions.openAboutBox(); });
    QObject::connect(_quit, &QAction::triggered, this, [&actions] { actions.quit(); });
    panel.addActions({_undo, _redo, _open, _save, _preferences, _quit});
}

void PanelMenu::showUndo(bool canUndo, bool canRedo) {
    _undo->setEnabled(canUndo);
    _redo->setEnabled(canRedo);
}

void PanelMenu::showForm(bool isAdvanced, bool isDark, bool hasChannelStrip) {
    _advanced->setChecked(isAdvanced);
    _dark->setChecked(isDark);
    _channelStrip->setChecked(hasChannelStrip);
}

}  // namespace tonquil
