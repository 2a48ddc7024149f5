// SPDX-License-Identifier: MIT
#include "windows/desktop/SessionRestoration.h"

#include <QGuiApplication>
#include <QSessionManager>

namespace tonquil {

SessionRestoration::SessionRestoration(TQController& controller, Storage storage)
    : _controller(controller), _storage(std::move(storage)) {
    QObject::connect(
        qApp, &QGuiApplication::saveStateRequest, this,
        [this](QSessionManager& /*manager*/) { _storage.store(_controller.restorableWindows()); },
        Qt::DirectConnection);
}

void SessionRestoration::restore() const {
    if (!qApp->isSessionRestored()) {
        return;
    }
    const PropertyValue windows = _storage.load();
    for (const auto& [identifier, state] : windows.items()) {
        _controller.restoreWindowWithIdentifier(identifier, state);
    }
}

}  // namespace tonquil
