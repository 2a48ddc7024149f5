// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "app/desktop/TargetWindows.h"
#include "app/panel/WindowSystem.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/DisplayService.h"
#include "targets/TQTargetWindowController.h"
#include "targets/TargetWindowList.h"
#include "windows/targets/AspectKeeper.h"
#include "windows/targets/DisplayLabel.h"

namespace tonquil {

/// Shows the calibration targets on the displays of a display service, and stores the floating
/// window's position and kind in the preferences.
class TargetPresenter final : public TargetWindows {
 public:
    /// Calls `windowMade` with the floating window before it is shown.
    TargetPresenter(DisplayService& service, PreferencesStore& preferences,
                    WindowSystem& windowSystem, std::function<void(QWidget&)> windowMade);

    void openTargetWindow() override;
    void openTargetWindow(TargetKind kind) override;
    [[nodiscard]] std::optional<TargetKind> floatingTarget() const override;
    void setHintsShown(bool areShown) override;
    void coverDisplay(DisplayID display, TargetKind kind, std::function<void()> closed) override;
    void uncoverDisplay(DisplayID display) override;
    [[nodiscard]] std::optional<TargetKind> visibleCover(DisplayID display) const override;
    [[nodiscard]] TargetKind coverKind(DisplayID display) const override;
    void displaysChanged() override;
    void identify(const std::vector<NamedDisplay>& displays) override;
    void saveFrame() override;

    /// The covers, at most one per display.
    [[nodiscard]] TargetWindowList& covers() { return _covers; }

 private:
    /// A cover, and the callback to call when it closes.
    struct Closing {
        const TQTargetWindowController* cover;
        std::function<void()> closed;
    };

    [[nodiscard]] TargetScreen screenOf(DisplayID display) const;
    [[nodiscard]] const TQTargetWindowController* existingCover(DisplayID display) const;
    void coverClosed(const TQTargetWindowController& cover);
    void makeFloatingWindow();
    void showFloatingWindow();

    DisplayService& _service;
    PreferencesStore& _preferences;
    WindowSystem& _windowSystem;
    std::function<void(QWidget&)> _windowMade;
    bool _areHintsShown = true;
    std::vector<Closing> _closings;
    TargetWindowList _covers;
    /// Created when first shown.
    std::unique_ptr<TQTargetWindowController> _targetWindowController;
    std::unique_ptr<AspectKeeper> _aspect;
    /// What tells the displays apart, while it is shown.
    std::vector<std::unique_ptr<DisplayLabel>> _labels;
    QTimer _labelTimer;
};

}  // namespace tonquil
