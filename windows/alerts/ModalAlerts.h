// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "app/desktop/Alerts.h"
#include "ui/theme/Appearance.h"

namespace tonquil {

class AlertWindow;

/// Alerts in windows of our own, in front of the active window or else in the middle of the screen.
class ModalAlerts final : public Alerts {
 public:
    using LookUp = std::function<Appearance()>;

    /// `appearance` is asked for at each alert.
    explicit ModalAlerts(LookUp appearance) : _appearance(std::move(appearance)) {}

    [[nodiscard]] std::size_t runModal(const Alert& alert) override;
    /// Takes the alert away that is being shown, if any, as if its last button had been chosen.
    void dismiss();

 private:
    LookUp _appearance;
    /// While one is shown; the newest.
    AlertWindow* _shown = nullptr;
};

}  // namespace tonquil
