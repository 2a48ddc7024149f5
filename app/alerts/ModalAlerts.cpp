// SPDX-License-Identifier: MIT
#include "app/alerts/ModalAlerts.h"

#include <QApplication>

#include "app/alerts/AlertWindow.h"

namespace tonquil {

std::size_t ModalAlerts::runModal(const Alert& alert) {
    AlertWindow window(alert, _appearance(), QApplication::activeWindow());
    window.exec();
    return window.chosenButton();
}

}  // namespace tonquil
