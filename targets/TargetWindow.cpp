// SPDX-License-Identifier: MIT
#include "targets/TargetWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <QWindow>
#include <utility>

#include "targets/PatternCanvas.h"
#include "targets/TQColorPatternArea.h"
#include "targets/TQGrayscalePatternArea.h"
#include "ui/TQVibrantMatrix.h"
#include "ui/theme/Appearance.h"

namespace tonquil {

namespace {

// In points.
constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int pickerWidth = 240;
// The patterns' own proportions, plus room for the footer.
constexpr QSize usualSize(864, 680);
constexpr QSize leastSize(400, 340);

// Nothing near the patterns is brighter than a quarter of full output, to avoid glare while
// comparing them. The hint is the darkest grey with readable contrast, 4.8 : 1.
constexpr double coverLevel = 0.2;
constexpr double hintLevel = 0.5;

}  // namespace

TargetWindow::TargetWindow(Actions actions)
    : _picker(new TQVibrantMatrix({QCoreApplication::translate("Targets", "Colour"),
                                   QCoreApplication::translate("Targets", "Greyscale")})),
      _hint(new QLabel),
      _color(new TQColorPatternArea),
      _grayscale(new TQGrayscalePatternArea),
      _patterns(new QStackedLayout),
      _footer(makeFooter()),
      _actions(std::move(actions)) {
    setWindowTitle(QCoreApplication::translate("Targets", "Targets"));
    setAttribute(Qt::WA_QuitOnClose, false);
    // Dark in every theme: a pattern's surroundings change how bright it looks.
    setAppearance(*this, {.isDark = true, .allowsVibrancy = false});
    setMinimumSize(leastSize);
    resize(usualSize);
    _patterns->addWidget(_color);
    _patterns->addWidget(_grayscale);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(_patterns, 1);
    column->addWidget(_footer);
}

QWidget* TargetWindow::makeFooter() {
    _picker->setAccessibleName(QCoreApplication::translate("Targets", "Target"));
    _picker->setFixedWidth(pickerWidth);
    _hint->setTextFormat(Qt::PlainText);
    _hint->setWordWrap(true);
    _hint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    // Keeps the patterns in place when the hint's length changes.
    _hint->setMinimumHeight(2 * _hint->fontMetrics().lineSpacing());
    QPalette palette = _hint->palette();
    palette.setColor(QPalette::WindowText, grayOf(hintLevel));
    _hint->setPalette(palette);

    auto* footer = new QWidget;
    auto* column = new QVBoxLayout(footer);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addWidget(_picker, 0, Qt::AlignHCenter);
    column->addWidget(_hint);
    return footer;
}

void TargetWindow::showPatternArea(QWidget& area, const QString& hint) {
    _current = &area;
    _patterns->setCurrentWidget(&area);
    _hint->setText(hint);
}

void TargetWindow::setHintsShown(bool areShown) {
    _hint->setVisible(areShown);
}

// A window manager would keep an ordinary window off the panels and the edges, or behind another
// full-screen window, so it is bypassed.
void TargetWindow::becomeCover() {
    _isCover = true;
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint |
                   Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    setMinimumSize(1, 1);
    setFocusPolicy(Qt::StrongFocus);
    _footer->hide();
}

void TargetWindow::cover(const QRect& frame) {
    if (QScreen* screen = QGuiApplication::screenAt(frame.center())) {
        setScreen(screen);
    }
    setGeometry(frame);
}

void TargetWindow::showInFront() {
    // On Wayland only the compositor places windows; it fills a screen with one that asks for it.
    if (_isCover && QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) {
        showFullScreen();
    } else {
        show();
    }
    raise();
    activateWindow();
    if (_isCover) {
        setFocus();
    }
}

void TargetWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), grayOf(_isCover ? coverLevel : darkBackgroundLevel));
}

void TargetWindow::keyPressEvent(QKeyEvent* event) {
    const int forward = isRightToLeft() ? -1 : 1;
    if (event->key() == Qt::Key_Escape && _isCover) {
        _actions.dismiss();
    } else if (event->key() == Qt::Key_1 || event->key() == Qt::Key_2) {
        _actions.chooseKind(event->key() - Qt::Key_1);
    } else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        _actions.stepKind(event->key() == Qt::Key_Right ? forward : -forward);
    } else {
        QWidget::keyPressEvent(event);
    }
}

// The patterns ignore mouse presses, so they arrive here.
void TargetWindow::mousePressEvent(QMouseEvent* event) {
    _isPressed = true;
    const bool isOnPattern =
        _current != nullptr && _current->geometry().contains(event->position().toPoint());
    if (!_isCover && isOnPattern && event->button() == Qt::LeftButton &&
        windowHandle() != nullptr) {
        windowHandle()->startSystemMove();
    }
}

// Not on the press: the release would go to the window behind.
void TargetWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
    if (_isCover && _isPressed) {
        _actions.dismiss();
    }
    _isPressed = false;
}

void TargetWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    _actions.closed();
}

}  // namespace tonquil
