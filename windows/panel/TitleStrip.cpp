// SPDX-License-Identifier: MIT
#include "windows/panel/TitleStrip.h"

#include <QApplication>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolButton>
#include <QToolTip>
#include <QWindow>

#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"
#include "windows/menus/ProblemText.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

constexpr int stripHeight = 28;
constexpr int menuGap = 2;

QToolButton* makeButton(PanelIcon icon, const QString& name, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setIcon(panelIcon(icon));
    button->setAutoRaise(true);
    button->setFixedSize(24, 24);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

/// Opens the menu below the button, aligned with its start or its end.
void openBelow(QToolButton& button, QMenu& menu, bool isAtEnd) {
    QObject::connect(&button, &QToolButton::clicked, &menu, [&button, &menu, isAtEnd] {
        QPoint corner(0, button.height() + menuGap);
        if (isAtEnd != button.isRightToLeft()) {
            corner.setX(button.width() - menu.sizeHint().width());
        }
        menu.popup(button.mapToGlobal(corner));
    });
}

}  // namespace

TitleStrip::TitleStrip(QMenu& menu, QWidget* parent)
    : QWidget(parent),
      _closeButton(makeButton(PanelIcon::Close,
                              QCoreApplication::translate("Panel", "Close the panel"), this)),
      _subjectButton(new QToolButton(this)),
      _storageSign(makeButton(PanelIcon::Warning, {}, this)),
      _remoteButton(makeButton(
          PanelIcon::Remote,
          QCoreApplication::translate("Panel", "Companions on the network may change the displays"),
          this)),
      _menuButton(makeButton(PanelIcon::Menu, QCoreApplication::translate("Panel", "Menu"), this)),
      _subjectMenu(new DisplayMenu(_subjectButton)) {
    setMinimumHeight(std::max(stripHeight, fontMetrics().height() + 8));
    _subjectButton->setAutoRaise(true);
    _subjectButton->setFocusPolicy(Qt::TabFocus);
    _subjectButton->installEventFilter(this);
    // A button with a menu of its own would get the style's arrow.
    openBelow(*_menuButton, menu, true);
    openBelow(*_subjectButton, *_subjectMenu, false);
    QObject::connect(_closeButton, &QToolButton::clicked, this, [this] {
        if (_close) {
            _close();
        }
    });

    _storageSign->hide();
    // Without hovering, as on a touch screen, a click shows the problem.
    QObject::connect(_storageSign, &QToolButton::clicked, this, [this] {
        QToolTip::showText(_storageSign->mapToGlobal(_storageSign->rect().bottomLeft()),
                           _storageSign->toolTip(), _storageSign);
    });
    _remoteButton->hide();
    QObject::connect(_remoteButton, &QToolButton::clicked, this, [this] { _openRemote(); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->setSpacing(4);
    layout->addWidget(_closeButton);
    layout->addStretch(1);
    layout->addWidget(_subjectButton);
    layout->addStretch(1);
    layout->addWidget(_storageSign);
    layout->addWidget(_remoteButton);
    layout->addWidget(_menuButton);
}

void TitleStrip::showSubject(const PanelSubject& subject) {
    _title = QCoreApplication::translate("PanelSubject", subject.title.c_str());
    _subjectMenu->setAllDisplays(subject.isAllDisplays);
    // The compact form has no other place to show the reason.
    const QString hint =
        !subject.obstacle.empty() ? obstacleText(subject)
        : subject.isAllDisplays
            ? QCoreApplication::translate("Panel", "An edit replaces the curve of each display")
            : QCoreApplication::translate("Panel", "Choose which displays are edited");
    _subjectButton->setToolTip(hint);
    _subjectButton->setAccessibleDescription(hint);
    updateTitle();
}

void TitleStrip::showRemoteConfiguration(bool isOn) {
    _remoteButton->setVisible(isOn);
    updateTitle();
}

void TitleStrip::showStorageProblem(const QString& sentence) {
    const QString name = QCoreApplication::translate(
        "Panel", "Changes are not saved at the moment. Tonquil keeps trying.");
    _storageSign->setVisible(!sentence.isEmpty());
    _storageSign->setAccessibleName(name);
    _storageSign->setAccessibleDescription(sentence);
    // The sentence may contain a file name that looks like markup.
    _storageSign->setToolTip(
        Qt::convertFromPlainText(name + QLatin1Char('\n') + sentence, Qt::WhiteSpaceNormal));
    updateTitle();
}

void TitleStrip::updateTitle() {
    const QString arrow = QStringLiteral(" \u25BE");
    // What the round buttons and the margins leave.
    const int buttons =
        2 + (_storageSign->isHidden() ? 0 : 1) + (_remoteButton->isHidden() ? 0 : 1);
    const int room = width() - buttons * (24 + 4 + 4) - 16 - fontMetrics().horizontalAdvance(arrow);
    _subjectButton->setText(fontMetrics().elidedText(_title, Qt::ElideMiddle, room) + arrow);
    _subjectButton->setAccessibleName(
        QCoreApplication::translate("Panel", "Edited: %1").arg(_title));
}

void TitleStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawHairline(painter, 0, height() - 1, width(), Qt::Horizontal, themeOf(*this).hairline);
}

// Moving begins with the drag, not with the press: the window manager would take the rest of a
// double-click for itself.
void TitleStrip::mousePressEvent(QMouseEvent* event) {
    _isDragged = false;
    _pressedAt = event->globalPosition().toPoint();
}

void TitleStrip::mouseMoveEvent(QMouseEvent* event) {
    drag(*event);
}

void TitleStrip::mouseReleaseEvent(QMouseEvent* /*event*/) {
    _hold.reset();
}

void TitleStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && _switchForm) {
        _switchForm();
    }
}

// The window manager moves the window best. After it has quit, Qt still asks it and reports
// success.
void TitleStrip::beginMove(const QPoint& pointer) {
    QWindow* const handle = window()->windowHandle();
    const bool isMoved = handle != nullptr && (!_hasWindowManager || _hasWindowManager()) &&
                         handle->startSystemMove();
    if (!isMoved) {
        _hold = pointer - window()->geometry().topLeft();
    }
}

void TitleStrip::continueMove(const QPoint& pointer) {
    if (_hold) {
        window()->move(pointer - *_hold);
    }
}

// The name is a button, but also the middle of the strip: a drag that starts on it moves the
// window.
bool TitleStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = static_cast<const QMouseEvent&>(*event);
        _isDragged = false;
        _pressedAt = press.globalPosition().toPoint();
    } else if (event->type() == QEvent::MouseMove) {
        return drag(static_cast<const QMouseEvent&>(*event));
    } else if (event->type() == QEvent::MouseButtonRelease) {
        _hold.reset();
    }
    return QWidget::eventFilter(watched, event);
}

// The button must not see a drag, or it would treat its end as a click.
bool TitleStrip::drag(const QMouseEvent& move) {
    const QPoint pointer = move.globalPosition().toPoint();
    if (!_isDragged && move.buttons().testFlag(Qt::LeftButton) &&
        (pointer - _pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        _isDragged = true;
        _subjectButton->setDown(false);
        beginMove(_pressedAt);
    }
    continueMove(pointer);
    return _isDragged;
}

void TitleStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    updateTitle();
}

}  // namespace tonquil
