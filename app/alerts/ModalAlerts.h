// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "app/Alerts.h"
#include "ui/Appearance.h"

namespace tonquil {

/// Alerts in windows of our own, in front of another window or in the middle of the screen.
class ModalAlerts final : public Alerts {
 public:
    using LookUp = std::function<Appearance()>;

    /// `appearance` is asked for at each alert. `parent` may be null.
    explicit ModalAlerts(LookUp appearance, QWidget* parent = nullptr);

    [[nodiscard]] std::size_t runModal(const Alert& alert) override;

 private:
    LookUp _appearance;
    QPointer<QWidget> _parent;
};

}  // namespace tonquil
