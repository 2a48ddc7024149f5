// SPDX-License-Identifier: MIT
#include "ui/TQTabButtonCell.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

#include "ui/Accessibility.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int tabPadding = 12;
constexpr int leastTabHeight = 28;

constexpr float selectedGrey = 0.2F;
constexpr float pressedGrey = 0.3F;
constexpr float restingGrey = 0.1F;

}  // namespace

TQTabButtonCell::TQTabButtonCell(const QString& title, QWidget* parent) : QAbstractButton(parent) {
    installAccessibleInterfaces();
    setText(title);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TQTabButtonCell::sizeHint() const {
    const QSize title = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {title.width() + 2 * tabPadding, std::max(leastTabHeight, title.height() + tabPadding)};
}

QSize TQTabButtonCell::minimumSizeHint() const {
    return {fontMetrics().size(Qt::TextShowMnemonic, text()).width() + tabPadding,
            sizeHint().height()};
}

void TQTabButtonCell::drawBezelWithFrame(QPainter& painter, const QRect& frame) const {
    const Appearance appearance = effectiveAppearance(*this);
    if (appearance.isDark && !appearance.options.increaseContrast) {
        const float level = isChecked() ? selectedGrey : isDown() ? pressedGrey : restingGrey;
        fillRounded(painter, frame.adjusted(1, 1, -1, -1), fieldRadius,
                    QColor::fromRgbF(level, level, level));
        return;
    }
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = frame.adjusted(1, 1, -1, -1);
    // The focus ring is drawn as for all controls of this folder.
    option.state.setFlag(QStyle::State_HasFocus, false);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    option.state.setFlag(QStyle::State_On, isChecked());
    option.state.setFlag(QStyle::State_Off, !isChecked());
    option.state.setFlag(QStyle::State_Raised, !isDown() && !isChecked());
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
}

QRect TQTabButtonCell::drawTitle(QPainter& painter, const QString& title, const QRect& frame) {
    const Appearance appearance = effectiveAppearance(*this);
    _backgroundStyle = appearance.isDark ? BackgroundStyle::Dark : BackgroundStyle::Light;
    const Theme& theme = themeFor(appearance);
    const int flags = Qt::AlignCenter | Qt::TextShowMnemonic;
    painter.setPen(isChecked() || isDown() ? theme.text : theme.secondaryText);
    QFont font = this->font();
    font.setWeight(isChecked() ? QFont::Medium : QFont::Normal);
    painter.setFont(font);
    style()->drawItemText(&painter, frame, flags, palette(), true, title);
    return style()->itemTextRect(QFontMetrics(font), frame, flags, true, title);
}

void TQTabButtonCell::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    // The ends of the row are in line with the controls around it.
    const bool isFirst = x() == 0;
    const bool isLast =
        parentWidget() != nullptr && geometry().right() == parentWidget()->width() - 1;
    drawBezelWithFrame(painter, rect().adjusted(isFirst ? -1 : 0, 0, isLast ? 1 : 0, 0));
    drawTitle(painter, text(), rect());
    if (hasFocus() && _showsFocusRing) {
        drawRoundedFrame(painter, rect().adjusted(1, 1, -1, -1), fieldRadius, 2,
                         themeOf(*this).focusRing);
    }
}

void TQTabButtonCell::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            event->ignore();
            break;
        default:
            QAbstractButton::keyPressEvent(event);
    }
}

void TQTabButtonCell::focusInEvent(QFocusEvent* event) {
    _showsFocusRing = isFocusShown(event->reason(), _showsFocusRing);
    QAbstractButton::focusInEvent(event);
}

}  // namespace tonquil
