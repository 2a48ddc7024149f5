// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <cstddef>
#include <vector>

#include "app/desktop/Alerts.h"
#include "ui/theme/Appearance.h"

class QBoxLayout;
class QPushButton;

namespace tonquil {

/// The window of an alert: an icon, the message, the explanation, and the buttons with the default
/// one outermost. Return presses the focused button, initially the default one. Closing the window
/// counts as pressing the default button too.
class AlertWindow : public QDialog {
 public:
    AlertWindow(const Alert& alert, const Appearance& appearance, QWidget* parent = nullptr);

    /// From 0, in the alert's order.
    [[nodiscard]] std::size_t chosenButton() const { return _chosenButton; }
    /// In the alert's order. Owned by the window.
    [[nodiscard]] const std::vector<QPushButton*>& buttons() const { return _buttons; }

 private:
    void addButtons(const Alert& alert, QBoxLayout& row);

    std::vector<QPushButton*> _buttons;
    std::size_t _chosenButton = 0;
};

}  // namespace tonquil
