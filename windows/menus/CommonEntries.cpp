// SPDX-License-Identifier: MIT
#include "windows/menus/CommonEntries.h"

#include <QCoreApplication>
#include <utility>

#include "app/panel/PanelActions.h"
#include "windows/menus/ProblemText.h"
#include "windows/menus/RecentMenu.h"

namespace tonquil {

void CommonEntries::addTargets() {
    _targets = _menu.addAction(QCoreApplication::translate("Panel", "Show targets"));
}

QAction* CommonEntries::addOpen() {
    _open = _menu.addAction(QCoreApplication::translate("Panel", "Open settings\u2026"));
    return _open;
}

void CommonEntries::addRecent() {
    _recent = new RecentMenu(_menu);
}

QAction* CommonEntries::addSave() {
    _save = _menu.addAction(QCoreApplication::translate("Panel", "Save settings\u2026"));
    return _save;
}

void CommonEntries::addPresets() {
    _presets = _menu.addMenu(QCoreApplication::translate("Panel", "Presets"));
}

QAction* CommonEntries::addPreferences() {
    _remote = _menu.addAction(QCoreApplication::translate("Panel", "Remote configuration is on"));
    _remote->setVisible(false);
    _preferences = _menu.addAction(QCoreApplication::translate("Panel", "Preferences\u2026"));
    return _preferences;
}

void CommonEntries::addAbout() {
    _webSite = _menu.addAction(QCoreApplication::translate("Panel", "Tonquil on the web"));
    _boardWebSite =
        _menu.addAction(QCoreApplication::translate("Panel", "About calibration targets"));
    _about = _menu.addAction(QCoreApplication::translate("Panel", "About Tonquil"));
}

QAction* CommonEntries::addQuit() {
    _quit = _menu.addAction(QCoreApplication::translate("Panel", "Quit"));
    return _quit;
}

void CommonEntries::setActions(PanelActions& actions) {
    const auto onTrigger = [this](QAction* action, auto call) {
        QObject::connect(action, &QAction::triggered, &_menu, std::move(call));
    };
    onTrigger(_targets, [&actions] { actions.openTargetWindow(); });
    onTrigger(_open, [&actions] { actions.loadGamma(); });
    _recent->setActions(actions);
    onTrigger(_save, [&actions] { actions.saveGamma(); });
    onTrigger(_remote, [&actions] { actions.openPreferences(); });
    onTrigger(_preferences, [&actions] { actions.openPreferences(); });
    onTrigger(_webSite, [&actions] { actions.openWebSite(); });
    onTrigger(_boardWebSite, [&actions] { actions.gammaBoardInfo(); });
    onTrigger(_about, [&actions] { actions.openAboutBox(); });
    onTrigger(_quit, [&actions] { actions.quit(); });
    // A tray that draws the menu itself takes one without entries for a plain entry.
    listPresets({}, actions);
    // Their files may have changed since the menu was last seen.
    QObject::connect(&_menu, &QMenu::aboutToShow, &_menu,
                     [this, &actions] { listPresets(actions.presets(), actions); });
}

void CommonEntries::listPresets(const std::vector<PresetEntry>& presets, PanelActions& actions) {
    _presets->clear();
    for (const PresetEntry& preset : presets) {
        QString text = QString::fromStdString(preset.name);
        if (!preset.problemKey.empty()) {
            text += QStringLiteral(" \u2014 ") +
                    translatedProblem(preset.problemKey, preset.problemArguments);
        }
        QAction* action = _presets->addAction(entryText(std::move(text)));
        action->setEnabled(preset.problemKey.empty());
        QObject::connect(action, &QAction::triggered, &_menu,
                         [&actions, name = preset.name] { actions.openPreset(name); });
    }
    _presets->addSeparator();
    QAction* save =
        _presets->addAction(QCoreApplication::translate("Panel", "Save as preset\u2026"));
    QObject::connect(save, &QAction::triggered, &_menu, [&actions] { actions.savePreset(); });
}

QString CommonEntries::entryText(QString name) {
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace tonquil
