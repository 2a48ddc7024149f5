// SPDX-License-Identifier: MIT
#include "windows/alerts/ModalAlerts.h"

#include <QApplication>
#include <QPushButton>
#include <utility>

#include "windows/alerts/AlertWindow.h"

namespace tonquil {

std::size_t ModalAlerts::runModal(const Alert& alert) {
    AlertWindow window(alert, _appearance(), QApplication::activeWindow());
    AlertWindow* const below = std::exchange(_shown, &window);
    window.exec();
    _shown = below;
    return window.chosenButton();
}

void ModalAlerts::dismiss() {
    if (_shown != nullptr) {
        _shown->buttons().back()->click();
    }
}

}  // namespace tonquil
