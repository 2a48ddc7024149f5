// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "app/desktop/Alerts.h"
#include "ui/theme/Appearance.h"

namespace tonquil {

class AlertWindow;

/// Alerts in our own windows, in front of the active window or else centred on the screen.
class ModalAlerts final : public Alerts {
 public:
    using LookUp = std::function<Appearance()>;

    /// Calls `appearance` for each alert.
    explicit ModalAlerts(LookUp appearance) : _appearance(std::move(appearance)) {}

    [[nodiscard]] std::size_t runModal(const Alert& alert) override;
    /// Closes the alert being shown, if any, as if its last button had been pressed.
    void dismiss();

 private:
    LookUp _appearance;
    /// The most recent alert being shown, or null.
    AlertWindow* _shown = nullptr;
};

}  // namespace tonquil
