// SPDX-License-Identifier: MIT
#include "windows/menus/PanelMenu.h"

#include <QCoreApplication>

#include "app/panel/PanelActions.h"

namespace tonquil {

PanelMenu::PanelMenu()
    : _undo(addAction(QCoreApplication::translate("Panel", "Undo"))),
      _redo(addAction(QCoreApplication::translate("Panel", "Redo"))) {
    const auto withShortcut = [this](QAction* action, const QKeySequence& keys) {
        action->setShortcut(keys);
        _shortcuts.append(action);
    };
    withShortcut(_undo, QKeySequence::Undo);
    withShortcut(_redo, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    addSeparator();
    withShortcut(_common.addOpen(), QKeySequence::Open);
    _common.addRecent();
    withShortcut(_common.addSave(), QKeySequence::Save);
    _common.addPresets();
    addSeparator();
    _makeEditable = addAction(QCoreApplication::translate("Panel", "Make editable"));
    _reset = addAction(QCoreApplication::translate("Panel", "Reset to calibration"));
    addSeparator();
    _common.addTargets();
    _view = addMenu(QCoreApplication::translate("Panel", "View"));
    _advanced = _view->addAction(QCoreApplication::translate("Panel", "Advanced panel"));
    _dark = _view->addAction(QCoreApplication::translate("Panel", "Dark theme"));
    _channelStrip = _view->addAction(QCoreApplication::translate("Panel", "Channel strip"));
    for (QAction* action : {_advanced, _dark, _channelStrip}) {
        action->setCheckable(true);
    }
    addSeparator();
    withShortcut(_common.addPreferences(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    addSeparator();
    _common.addAbout();
    addSeparator();
    withShortcut(_common.addQuit(), QKeySequence::Quit);
    showUndo(false, false);
}

void PanelMenu::setActions(PanelActions& actions, QWidget& panel) {
    _common.setActions(actions);
    QObject::connect(_undo, &QAction::triggered, this, [&actions] { actions.undo(); });
    QObject::connect(_redo, &QAction::triggered, this, [&actions] { actions.redo(); });
    QObject::connect(this, &QMenu::aboutToShow, this,
                     [this, &actions] { _makeEditable->setEnabled(actions.canMakeEditable()); });
    QObject::connect(_makeEditable, &QAction::triggered, this,
                     [&actions] { actions.makeEditable(); });
    QObject::connect(_reset, &QAction::triggered, this, [&actions] { actions.resetGamma(); });
    QObject::connect(_advanced, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setAdvancedPanel(isOn); });
    QObject::connect(_dark, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setDarkTheme(isOn); });
    QObject::connect(_channelStrip, &QAction::triggered, this,
                     [&actions](bool isOn) { actions.setChannelStrip(isOn); });
    panel.addActions(_shortcuts);
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
