// SPDX-License-Identifier: MIT
#include "app/alerts/ModalAlerts.h"

#include <utility>

#include "app/alerts/AlertWindow.h"

namespace tonquil {

ModalAlerts::ModalAlerts(LookUp appearance, QWidget* parent)
    : _appearance(std::move(appearance)), _parent(parent) {}

std::size_t ModalAlerts::runModal(const Alert& alert) {
    AlertWindow window(alert, _appearance(), _parent);
    window.exec();
    return window.chosenButton();
}

}  // namespace tonquil
