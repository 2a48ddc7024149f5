// SPDX-License-Identifier: MIT
#include "hotkeys/field/DDHotKeyTextField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "hotkeys/KeyCombinationString.h"
#include "hotkeys/field/DDHotKeyTextFieldCell.h"
#include "hotkeys/field/DDHotKeyTextFieldEditor.h"
#include "hotkeys/field/HotKeyClearButton.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr int padding = 4;
constexpr int leastHeight = 24;
constexpr int clearButtonSpace = 20;

}  // namespace

DDHotKeyTextField::DDHotKeyTextField(const KeyboardLayout& layout, QWidget* parent)
    : QLineEdit(parent), _layout(layout), _clearButton(new HotKeyClearButton(this)) {
    setFrame(false);
    // The same on both sides, so that the text stays centred.
    setTextMargins(clearButtonSpace, 0, clearButtonSpace, 0);
    setAlignment(Qt::AlignCenter);
    // Keys are recorded, not typed: no cursor, no input method, no menu.
    setReadOnly(true);
    setAcceptDrops(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::ArrowCursor);
    // The field draws its own background.
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::transparent);
    setPalette(palette);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    _clearButton->hide();
    connect(_clearButton, &QAbstractButton::clicked, this, &DDHotKeyTextField::clearHotKey);
}

DDHotKeyTextField::~DDHotKeyTextField() {
    // No more signals, but the keys must be released.
    const QSignalBlocker silence(this);
    endRecording();
}

void DDHotKeyTextField::setHotKey(std::shared_ptr<DDHotKey> hotKey) {
    if (hotKey == _hotKey) {
        return;
    }
    _hotKey = std::move(hotKey);
    _clearButton->setVisible(_hotKey != nullptr);
    showCombination(_hotKey ? _hotKey->keyCode() : std::uint16_t{0},
                    _hotKey ? _hotKey->modifierFlags() : ModifierFlags{0});
}

QString DDHotKeyTextField::stringValue() const {
    qWarning(
        "-[DDHotKeyTextField stringValue] is not what you want. Use -[DDHotKeyTextField hotKey] "
        "instead.");
    return text();
}

void DDHotKeyTextField::setStringValue(const QString& text) {
    qWarning(
        "-[DDHotKeyTextField setStringValue:] is not what you want. Use -[DDHotKeyTextField "
        "setHotKey:] instead.");
    setText(text);
}

void DDHotKeyTextField::showCombination(std::uint16_t keyCode, ModifierFlags modifierFlags) {
    const std::string combination = keyCombinationString(keyCode, modifierFlags, _layout);
    setText(QString::fromStdString(combination).toUpper());
}

QSize DDHotKeyTextField::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int width = metrics.horizontalAdvance(tr("Type a shortcut")) + 2 * clearButtonSpace;
    return {(width + 3) / 4 * 4, std::max(leastHeight, metrics.height() + padding)};
}

QSize DDHotKeyTextField::minimumSizeHint() const {
    return sizeHint();
}

void DDHotKeyTextField::beginRecording() {
    if (_isRecording) {
        return;
    }
    _editor = DDHotKeyTextFieldCell::fieldEditorForView(this);
    if (!_editor || !_editor->becomeFirstResponder()) {
        return;
    }
    _isRecording = true;
    update();
    Q_EMIT recordingBegan();
}

void DDHotKeyTextField::endRecording() {
    if (!_isRecording) {
        return;
    }
    _isRecording = false;
    if (_editor) {
        _editor->resignFirstResponder();
    }
    update();
    Q_EMIT recordingEnded();
}

void DDHotKeyTextField::clearHotKey() {
    setHotKey(nullptr);
    clear();
    Q_EMIT hotKeyChanged();
    if (_isRecording) {
        clearFocus();
    }
}

void DDHotKeyTextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
        drawField(painter, rect(), themeOf(*this), hasFocus());
    }
    if (_isRecording) {
        paintPrompt(tr("Type a shortcut"));
    } else if (!_hotKey && text().isEmpty()) {
        paintPrompt(tr("None"));
    } else {
        QLineEdit::paintEvent(event);
    }
}

void DDHotKeyTextField::paintPrompt(const QString& prompt) {
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    painter.setPen(themeOf(*this).secondaryText);
    const QRect place = rect().adjusted(padding, 0, -padding, 0);
    painter.drawText(place, Qt::AlignCenter,
                     fontMetrics().elidedText(prompt, Qt::ElideRight, place.width()));
}

void DDHotKeyTextField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    placeClearButton();
}

void DDHotKeyTextField::placeClearButton() {
    const QSize size = _clearButton->sizeHint();
    const QPoint corner(width() - size.width() - padding, (height() - size.height()) / 2);
    _clearButton->setGeometry(QStyle::visualRect(layoutDirection(), rect(), QRect(corner, size)));
}

// There is nothing to select; the click itself gives focus.
void DDHotKeyTextField::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && hasFocus()) {
        beginRecording();
    }
}

void DDHotKeyTextField::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
}

void DDHotKeyTextField::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

void DDHotKeyTextField::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
}

void DDHotKeyTextField::keyPressEvent(QKeyEvent* event) {
    // During a recording the editor has already consumed the key.
    const bool isBegin = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    if (isBegin && !event->isAutoRepeat()) {
        beginRecording();
    } else {
        event->ignore();
    }
}

void DDHotKeyTextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    // Tabbing through or activating the window must not start a recording, which would swallow the
    // next Tab.
    if (event->reason() == Qt::MouseFocusReason || event->reason() == Qt::OtherFocusReason) {
        beginRecording();
    }
    deselect();
}

void DDHotKeyTextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    endRecording();
}

}  // namespace tonquil
