// SPDX-License-Identifier: MIT
// The panel as a window: its position, and when it takes the keyboard focus.
#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QWindow>

#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "windows/front/BringToFront.h"
#include "windows/menus/ProblemText.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/DevicePixels.h"
#include "windows/panel/TitleStrip.h"

namespace tonquil {

bool ControlPanel::isPlacedByDesktop() const {
    return areWindowsPlacedByDesktop();
}

Rectangle ControlPanel::frame() const {
    if (isPlacedByDesktop()) {
        return devicePixelsFrom(QRect(screen()->geometry().topLeft(), size()));
    }
    return devicePixelsFrom(geometry());
}

void ControlPanel::setFrameOrigin(const Point& origin) {
    if (isPlacedByDesktop()) {
        return;
    }
    QPoint place = pointsFrom(origin);
    // Qt treats exactly (0, 0) as "no position requested".
    if (place.isNull()) {
        place.setX(1);
    }
    setGeometry(QRect(place, size()));
}

void ControlPanel::makeKeyAndOrderFront() {
    setAcceptsKeyboard(true);
    bringToFront(*this, _windowSystem, Workspaces::All);
}

bool ControlPanel::isOnActiveWorkspace() const {
    return _windowSystem.isOnActiveWorkspace(effectiveWinId());
}

PanelSliderGeometry ControlPanel::masterSliderOfSelectedTab() const {
    const TQSlider& slider = *_contents->sliders.row(_selectedTab, Channel::Master).slider;
    const QRect place = _contents->placeOf(slider).translated(_contents->pos());
    const double scale = devicePixelsFrom(geometry()).width / width();
    return {.frame = {place.x() * scale, place.y() * scale, place.width() * scale,
                      place.height() * scale},
            .value = slider.floatValue(),
            .minimum = slider.minValue(),
            .maximum = slider.maxValue(),
            .scale = scale};
}

void ControlPanel::showStorageProblem(const std::optional<Problem>& problem) {
    _contents->titleStrip->showStorageProblem(
        problem ? translatedProblem(problem->key(), problem->arguments) : QString());
}

void ControlPanel::showRemoteConfiguration(bool isOn) {
    _contents->titleStrip->showRemoteConfiguration(isOn);
    _menu.showRemoteConfiguration(isOn);
}

void ControlPanel::takeKeyboard() {
    setAcceptsKeyboard(true);
    activateWindow();
}

// Clicking a window that does not accept the keyboard focus leaves the focus where it is.
void ControlPanel::setAcceptsKeyboard(bool accepts) {
    if (QWindow* handle = windowHandle()) {
        handle->setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
    }
}

// During the animation the height is not that of the form yet.
bool ControlPanel::isCutOff(const QWidget& control) const {
    return !_isAdvanced && control.mapTo(this, QPoint()).y() >= minimumHeight();
}

bool ControlPanel::focusNextPrevChild(bool next) {
    const QWidget* const start = focusWidget();
    do {
        if (!QWidget::focusNextPrevChild(next)) {
            return false;
        }
    } while (focusWidget() != start && isCutOff(*focusWidget()));
    return true;
}

bool ControlPanel::event(QEvent* event) {
    // The panel refuses the keyboard focus only while the pointer is on it and not on a number
    // field: clicking a slider leaves the focus where it is, but the panel can still be reached by
    // switching windows.
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave ||
        event->type() == QEvent::WindowDeactivate) {
        updateAcceptsKeyboard();
    } else if (event->type() == QEvent::WindowBlocked) {
        // The release goes to the window in front.
        endComparison();
        letGo();
    }
    return QWidget::event(event);
}

void ControlPanel::updateAcceptsKeyboard() {
    setAcceptsKeyboard(isActiveWindow() || !underMouse() || _isFieldUnderMouse);
}

bool ControlPanel::eventFilter(QObject* watched, QEvent* event) {
    auto* field = dynamic_cast<TQNumericTextField*>(watched);
    if (field != nullptr && event->type() == QEvent::MouseButtonPress) {
        takeKeyboard();
        firstResponderChanged(field);
    } else if (field != nullptr &&
               (event->type() == QEvent::Enter || event->type() == QEvent::Leave)) {
        // A window manager decides on the press whether a window takes the focus, before we get the
        // event.
        _isFieldUnderMouse = event->type() == QEvent::Enter && field->isEnabled();
        updateAcceptsKeyboard();
    }
    return QWidget::eventFilter(watched, event);
}

void ControlPanel::tellMoved() {
    if (_actions != nullptr) {
        _actions->panelMoved();
    }
}

void ControlPanel::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    tellMoved();
}

void ControlPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Most of the panel may be on another display now.
    tellMoved();
}

void ControlPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (isPlacedByDesktop() && _followedWindow != windowHandle()) {
        _followedWindow = windowHandle();
        QObject::connect(_followedWindow, &QWindow::screenChanged, this,
                         [this] { followScreen(); });
        followScreen();
    }
    updatePlot();
}

// The displays may be rearranged before the toolkit hears of it.
void ControlPanel::followScreen() {
    QObject::disconnect(_screenConnection);
    _screenConnection =
        QObject::connect(screen(), &QScreen::geometryChanged, this, [this] { tellMoved(); });
    tellMoved();
}

void ControlPanel::dragEnterEvent(QDragEnterEvent* event) {
    const auto urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void ControlPanel::dropEvent(QDropEvent* event) {
    const QString file = event->mimeData()->urls().front().toLocalFile();
    _actions->openFile(QFile::encodeName(file).toStdString());
    event->acceptProposedAction();
}

void ControlPanel::closeEvent(QCloseEvent* event) {
    if (_actions != nullptr) {
        _actions->endEdit();
    }
    QWidget::closeEvent(event);
}

}  // namespace tonquil
