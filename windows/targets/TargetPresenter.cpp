// SPDX-License-Identifier: MIT
#include "windows/targets/TargetPresenter.h"

#include <QWidget>
#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "app/preferences/SettingsKeys.h"
#include "app/preferences/WindowFrame.h"
#include "screens/ScreenRegistry.h"
#include "windows/front/BringToFront.h"
#include "windows/panel/DevicePixels.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

constexpr std::chrono::seconds labelTime{2};

}  // namespace

TargetPresenter::TargetPresenter(DisplayService& service, PreferencesStore& preferences,
                                 WindowSystem& windowSystem,
                                 std::function<void(QWidget&)> windowMade)
    : _service(service),
      _preferences(preferences),
      _windowSystem(windowSystem),
      _windowMade(std::move(windowMade)) {
    _labelTimer.setSingleShot(true);
    _labelTimer.setInterval(labelTime);
    _labelTimer.callOnTimeout([this] { _labels.clear(); });
    TargetPresenter::displaysChanged();
}

TargetScreen TargetPresenter::screenOf(DisplayID display) const {
    return {.displayID = display, .frame = pointsFrom(_service.bounds(display))};
}

void TargetPresenter::makeFloatingWindow() {
    if (_targetWindowController) {
        return;
    }
    _targetWindowController = std::make_unique<TQTargetWindowController>();
    TQTargetWindowController& controller = *_targetWindowController;
    controller.window().setWindowIcon(programIcon());
    _aspect = std::make_unique<AspectKeeper>(controller.window(), _windowSystem);
    const auto frame = windowFrameFrom(_preferences.stringForKey(settingsKey::targetsFrame));
    if (frame &&
        (areWindowsPlacedByDesktop() || !_service.displaysWithPoint(frame->centre(), 1).empty())) {
        controller.setFrame(pointsFrom(*frame));
    }
    controller.setKind(
        static_cast<std::int32_t>(_preferences.integerForKey(settingsKey::targetKind)));
    controller.setKindChanged([this](std::int32_t kind) {
        if (kind != _preferences.integerForKey(settingsKey::targetKind)) {
            _preferences.setValue(settingsKey::targetKind, kind);
        }
    });
    controller.setClosed([this] { saveFrame(); });
    controller.setHintsShown(_areHintsShown);
    _windowMade(controller.window());
}

void TargetPresenter::openTargetWindow() {
    makeFloatingWindow();
    showFloatingWindow();
}

void TargetPresenter::openTargetWindow(TargetKind kind) {
    makeFloatingWindow();
    _targetWindowController->setKind(static_cast<std::int32_t>(kind));
    showFloatingWindow();
}

void TargetPresenter::showFloatingWindow() {
    bringToFront(_targetWindowController->window(), _windowSystem, Workspaces::All);
}

std::optional<TargetKind> TargetPresenter::floatingTarget() const {
    if (!_targetWindowController || !_targetWindowController->isShown()) {
        return std::nullopt;
    }
    return static_cast<TargetKind>(_targetWindowController->kind());
}

void TargetPresenter::setHintsShown(bool areShown) {
    _areHintsShown = areShown;
    if (_targetWindowController) {
        _targetWindowController->setHintsShown(areShown);
    }
}

void TargetPresenter::coverDisplay(DisplayID display, TargetKind kind,
                                   std::function<void()> closed) {
    TQTargetWindowController& cover = _covers.targetWindowControllerForScreen(screenOf(display));
    cover.setKind(static_cast<std::int32_t>(kind));
    cover.setClosed([this, &cover] { coverClosed(cover); });
    if (closed) {
        _closings.push_back({&cover, std::move(closed)});
    }
    cover.showWindow();
}

// The callback may cover the display again.
void TargetPresenter::coverClosed(const TQTargetWindowController& cover) {
    std::vector<Closing> due;
    std::erase_if(_closings, [&](Closing& closing) {
        const bool isDue = closing.cover == &cover;
        if (isDue) {
            due.push_back(std::move(closing));
        }
        return isDue;
    });
    for (const Closing& closing : due) {
        closing.closed();
    }
}

void TargetPresenter::uncoverDisplay(DisplayID display) {
    if (auto* cover = _covers.existingTargetWindowControllerForScreen(screenOf(display))) {
        cover->dismissTargetWindowControllerForScreen();
    }
}

const TQTargetWindowController* TargetPresenter::existingCover(DisplayID display) const {
    return _covers.existingTargetWindowControllerForScreen(screenOf(display));
}

std::optional<TargetKind> TargetPresenter::visibleCover(DisplayID display) const {
    const TQTargetWindowController* cover = existingCover(display);
    if (cover == nullptr || !cover->isShown()) {
        return std::nullopt;
    }
    return static_cast<TargetKind>(cover->kind());
}

TargetKind TargetPresenter::coverKind(DisplayID display) const {
    const TQTargetWindowController* cover = existingCover(display);
    return cover == nullptr ? TargetKind::Color : static_cast<TargetKind>(cover->kind());
}

void TargetPresenter::displaysChanged() {
    std::vector<TargetScreen> screens;
    for (const DisplayID display : _service.onlineDisplays(ScreenRegistry::mostScreens)) {
        screens.push_back(screenOf(display));
    }
    _covers.screensChanged(screens);
}

// Displays that mirror each other share a label.
void TargetPresenter::identify(const std::vector<NamedDisplay>& displays) {
    struct Label {
        QRect frame;
        QStringList numbers;
        QStringList names;
    };
    std::vector<Label> labels;
    int number = 0;
    for (const NamedDisplay& display : displays) {
        const QRect frame = screenOf(display.display).frame;
        auto label = std::ranges::find(labels, frame, &Label::frame);
        if (label == labels.end()) {
            label = labels.insert(labels.end(), {.frame = frame, .numbers = {}, .names = {}});
        }
        label->numbers.append(QString::number(++number));
        label->names.append(QString::fromStdString(display.name));
    }
    _labels.clear();
    for (const Label& label : labels) {
        const QString separator = QStringLiteral(", ");
        _labels.push_back(std::make_unique<DisplayLabel>(label.numbers.join(separator),
                                                         label.names.join(separator),
                                                         _windowSystem.isCompositing()));
        _labels.back()->showOn(label.frame);
    }
    _labelTimer.start();
}

void TargetPresenter::saveFrame() {
    if (!_targetWindowController) {
        return;
    }
    Rectangle frame = devicePixelsFrom(_targetWindowController->frame());
    if (areWindowsPlacedByDesktop()) {
        // Only the size is known; another desktop may want the place.
        const auto stored = windowFrameFrom(_preferences.stringForKey(settingsKey::targetsFrame));
        const Point centre =
            stored ? stored->centre() : _service.bounds(_service.mainDisplay()).centre();
        frame.x = centre.x - frame.width / 2;
        frame.y = centre.y - frame.height / 2;
    }
    _preferences.setValue(settingsKey::targetsFrame, textFromWindowFrame(frame));
}

}  // namespace tonquil
