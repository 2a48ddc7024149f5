// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace tonquil {

class PanelActions;

/// The recently used settings files, as part of another menu.
class RecentMenu : public QMenu {
 public:
    /// Adds itself to the menu, which owns it.
    explicit RecentMenu(QMenu& menu);

    /// The files are looked up each time the menu around it is opened.
    void setActions(PanelActions& actions);

 private:
    void fill(PanelActions& actions);

    QMenu& _menu;
};

}  // namespace tonquil
