// SPDX-License-Identifier: MIT
#pragma once

#include <QActionGroup>
#include <QMenu>
#include <memory>

namespace tonquil {

class PanelActions;
struct PanelDisplay;

/// The menu that chooses which displays the panel edits.
class DisplayMenu : public QMenu {
 public:
    explicit DisplayMenu(QWidget* parent) : QMenu(parent) {}

    /// The menu asks for the displays each time it is opened.
    void setActions(PanelActions& actions);
    void setAllDisplays(bool areAll) { _areAll = areAll; }

 private:
    void fill(PanelActions& actions);
    void addDisplay(PanelActions& actions, const PanelDisplay& display, int number);

    bool _areAll = false;
    /// Exactly one is chosen.
    std::unique_ptr<QActionGroup> _choices;
};

}  // namespace tonquil
