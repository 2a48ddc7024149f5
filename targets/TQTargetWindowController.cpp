// SPDX-License-Identifier: MIT
#include "targets/TQTargetWindowController.h"

#include <QCoreApplication>
#include <utility>

#include "targets/TQColorPatternArea.h"
#include "targets/TQGrayscalePatternArea.h"
#include "targets/TargetWindow.h"
#include "targets/TargetWindowList.h"
#include "ui/TQVibrantMatrix.h"

namespace tonquil {

namespace {

QString hintFor(std::int32_t kind) {
    return kind == 0 ? QCoreApplication::translate(
                           "Targets",
                           "From a little way off, the striped quarters of each coloured square "
                           "should look as bright as the plain ones.")
                     : QCoreApplication::translate(
                           "Targets",
                           "Every step should stand out from the next, down to black and up to "
                           "white, and no grey should look tinted.");
}

}  // namespace

TQTargetWindowController::TQTargetWindowController()
    : _window(std::make_unique<TargetWindow>(
          TargetWindow::Actions{.chooseKind = [this](int kind) { setKind(kind); },
                                .stepKind = [this](int step) { setKind(_kind + step); },
                                .dismiss = [this] { dismissTargetWindowControllerForScreen(); },
                                .closed = [this] { windowClosed(); }})) {
    targetKindPicker()->setAction([this](int /*column*/) { changeKind(*targetKindPicker()); });
    setKind(0);
}

TQTargetWindowController::~TQTargetWindowController() = default;

void TQTargetWindowController::setKind(std::int32_t kind) {
    if (kind != 0 && kind != 1) {
        return;
    }
    QWidget* wanted = colorPatternArea();
    if (kind == 1) {
        wanted = grayscalePatternArea();
    }
    _kind = kind;
    if (wanted != currentPatternArea()) {
        _window->showPatternArea(*wanted, hintFor(kind));
        targetKindPicker()->setSelectedColumn(kind);
    }
    if (_kindChanged) {
        _kindChanged(kind);
    }
}

void TQTargetWindowController::changeKind(const TQVibrantMatrix& sender) {
    setKind(sender.selectedColumn());
}

TQVibrantMatrix* TQTargetWindowController::targetKindPicker() const {
    return _window->targetKindPicker();
}

TQColorPatternArea* TQTargetWindowController::colorPatternArea() const {
    return _window->colorPatternArea();
}

TQGrayscalePatternArea* TQTargetWindowController::grayscalePatternArea() const {
    return _window->grayscalePatternArea();
}

const QWidget* TQTargetWindowController::currentPatternArea() const {
    return _window->currentPatternArea();
}

void TQTargetWindowController::prepareForFillingScreen(const TargetScreen& screen) {
    _window->becomeCover();
    moveTo(screen);
}

void TQTargetWindowController::moveTo(const TargetScreen& screen) {
    _screen = screen;
    _window->cover(screen.frame);
}

// Closing calls the owner back, and by then the controller must be off the list.
void TQTargetWindowController::dismissTargetWindowControllerForScreen() {
    if (_list != nullptr) {
        _list->release(*this);
    }
    _window->close();
}

void TQTargetWindowController::windowClosed() {
    if (_list != nullptr) {
        _list->release(*this);
    }
    if (_closed) {
        _closed();
    }
}

void TQTargetWindowController::showWindow() {
    _window->showInFront();
}

bool TQTargetWindowController::isShown() const {
    return _window->isVisible();
}

QRect TQTargetWindowController::frame() const {
    return _window->geometry();
}

void TQTargetWindowController::setFrame(const QRect& frame) {
    _window->setGeometry(frame);
}

void TQTargetWindowController::setHintsShown(bool areShown) {
    _window->setHintsShown(areShown);
}

QWidget& TQTargetWindowController::window() const {
    return *_window;
}

void TQTargetWindowController::setKindChanged(std::function<void(std::int32_t)> kindChanged) {
    _kindChanged = std::move(kindChanged);
}

void TQTargetWindowController::setClosed(std::function<void()> closed) {
    _closed = std::move(closed);
}

}  // namespace tonquil
