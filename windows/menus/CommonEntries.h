// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <vector>

namespace tonquil {

class PanelActions;
class RecentMenu;
struct PresetEntry;

/// The entries that the panel's menu and the status icon's menu have in common. Each `add` puts its
/// entries at the menu's end.
class CommonEntries {
 public:
    /// The menu must outlive this.
    explicit CommonEntries(QMenu& menu) : _menu(menu) {}

    void addTargets();
    QAction* addOpen();
    void addRecent();
    QAction* addSave();
    void addPresets();
    QAction* addPreferences();
    void addAbout();
    QAction* addQuit();

    /// Connects everything that was added.
    void setActions(PanelActions& actions);
    /// A build of the program may have no web sites.
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _webSite->setVisible(hasSite);
        _boardWebSite->setVisible(hasBoardSite);
    }
    void showRemoteConfiguration(bool isOn) { _remote->setVisible(isOn); }

    /// An entry's text for a file name: in a menu, a lone ampersand would underline the next
    /// character.
    [[nodiscard]] static QString entryText(QString name);

 private:
    void listPresets(const std::vector<PresetEntry>& presets, PanelActions& actions);

    QMenu& _menu;
    QAction* _targets = nullptr;
    QAction* _open = nullptr;
    RecentMenu* _recent = nullptr;
    QAction* _save = nullptr;
    QMenu* _presets = nullptr;
    QAction* _remote = nullptr;
    QAction* _preferences = nullptr;
    QAction* _webSite = nullptr;
    QAction* _boardWebSite = nullptr;
    QAction* _about = nullptr;
    QAction* _quit = nullptr;
};

}  // namespace tonquil
