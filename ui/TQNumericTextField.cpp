// SPDX-License-Identifier: MIT
#include "ui/TQNumericTextField.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/TQSlider.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int fieldPadding = 4;
constexpr int leastFieldHeight = 24;

constexpr int longestEntry = 24;

QString textFor(float value, int decimals) {
    QString text = QString::number(static_cast<double>(value), 'f', decimals);
    const bool isZero = std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        return character == u'-' || character == u'0' || character == u'.';
    });
    if (isZero && text.startsWith(u'-')) {
        text.remove(0, 1);
    }
    return text;
}

}  // namespace

TQNumericTextField::TQNumericTextField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setTextMargins(fieldPadding, 0, fieldPadding, 0);
    setMaxLength(longestEntry);
    // Numbers are right-aligned in both reading directions.
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    // This class draws the background itself.
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    setPalette(palette);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    showValue();
}

std::optional<float> TQNumericTextField::typedValue() const {
    QString number = text().trimmed();
    number.replace(u',', u'.');
    bool isNumber = false;
    const float value = number.toFloat(&isNumber);
    if (!isNumber || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

float TQNumericTextField::floatValue() const {
    return isEditing() ? typedValue().value_or(_value) : _value;
}

void TQNumericTextField::setFloatValue(float value) {
    if (std::isfinite(value)) {
        _value = value;
        showValue();
    }
}

void TQNumericTextField::takeFloatValueFrom(const TQSlider& slider) {
    if (!isEditing()) {
        setFloatValue(slider.floatValue());
    }
}

bool TQNumericTextField::isEditing() const {
    return isModified() && text() != _shownText;
}

void TQNumericTextField::showValue() {
    _shownText = textFor(_value, hasFocus() ? 3 : 2);
    // Setting the text clears the undo history of what was typed.
    if (text() == _shownText && !isModified()) {
        return;
    }
    // A fully selected number stays selected when it changes, ready to be typed over.
    const bool isAllSelected = hasSelectedText() && selectedText() == text();
    setText(_shownText);
    if (isAllSelected) {
        selectAll();
    }
}

void TQNumericTextField::commit() {
    if (!isEditing()) {
        return;
    }
    const auto typed = typedValue();
    setFloatValue(typed.value_or(_value));
    if (typed && target() != nullptr) {
        target()->_updateToAuxiliaryValue(*this);
    }
}

void TQNumericTextField::revert() {
    showValue();
}

TQSlider* TQNumericTextField::target() const {
    return _target;
}

void TQNumericTextField::setTarget(TQSlider* target) {
    _target = target;
}

void TQNumericTextField::incrementValueOf() {
    if (target() != nullptr) {
        target()->incrementValueOf(*this);
    }
}

void TQNumericTextField::decrementValueOf() {
    if (target() != nullptr) {
        target()->decrementValueOf(*this);
    }
}

QSize TQNumericTextField::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    // A line edit's inner margin is 2 points, and the cursor needs one.
    const int width =
        metrics.horizontalAdvance(QStringLiteral("-0.000")) + 2 * (fieldPadding + 2) + 1;
    return {(width + 3) / 4 * 4, std::max(leastFieldHeight, metrics.height() + fieldPadding)};
}

QSize TQNumericTextField::minimumSizeHint() const {
    return sizeHint();
}

bool TQNumericTextField::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        // Undo goes to the window while nothing was typed here, and Escape only comes here while
        // something was.
        if ((key->matches(QKeySequence::Undo) && !isUndoAvailable()) ||
            (key->matches(QKeySequence::Redo) && !isRedoAvailable())) {
            key->ignore();
            return true;
        }
        if (key->key() == Qt::Key_Escape && isEditing()) {
            key->accept();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void TQNumericTextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
        drawField(painter, rect(), themeOf(*this), hasFocus() && _showsFocusRing);
    }
    QLineEdit::paintEvent(event);
}

void TQNumericTextField::mousePressEvent(QMouseEvent* event) {
    _isFirstClick = _isFirstClick || !hasFocus();
    _showsFocusRing = false;
    update();
    QLineEdit::mousePressEvent(event);
}

void TQNumericTextField::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(_isFirstClick, false) && !hasSelectedText()) {
        selectAll();
    }
}

void TQNumericTextField::wheelEvent(QWheelEvent* event) {
    if (target() == nullptr) {
        QLineEdit::wheelEvent(event);
        return;
    }
    commit();
    event->setAccepted(target()->scrollWheel(*event));
}

void TQNumericTextField::keyPressEvent(QKeyEvent* event) {
    _isFirstClick = false;
    _showsFocusRing = true;
    update();
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isEscape = event->key() == Qt::Key_Escape;
    if (!isEditing() || (!isReturn && !isEscape)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (isReturn) {
        commit();
    } else {
        revert();
    }
    selectAll();
}

void TQNumericTextField::focusInEvent(QFocusEvent* event) {
    // Before the base class selects the text.
    if (!isEditing()) {
        showValue();
    }
    _showsFocusRing = isFocusShown(event->reason(), _showsFocusRing);
    QLineEdit::focusInEvent(event);
    // The click's own events follow the focus change that it causes; a window manager may focus the
    // window first.
    _isFirstClick =
        event->reason() == Qt::MouseFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
}

void TQNumericTextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // A menu takes the focus only briefly and gives it back.
    if (event->reason() != Qt::PopupFocusReason) {
        commit();
    }
    if (!isEditing()) {
        showValue();
    }
}

}  // namespace tonquil
