// SPDX-License-Identifier: MIT
#include "hotkeys/field/DDHotKeyTextFieldEditor.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "hotkeys/VirtualKeys.h"
#include "hotkeys/field/DDHotKeyTextField.h"
#include "hotkeys/field/QtKeys.h"

namespace tonquil {

namespace {

// Each of these with a key is a combination. Caps lock and the numeric keypad flag do not count.
constexpr ModifierFlags combiningFlags = ModifierFlag::shift | ModifierFlag::control |
                                         ModifierFlag::option | ModifierFlag::command |
                                         ModifierFlag::function;

bool isNewline(const QString& characters) {
    if (characters.isEmpty()) {
        return false;
    }
    const char16_t first = characters.front().unicode();
    return (first >= u'\u000A' && first <= u'\u000D') || first == u'\u0085' || first == u'\u2028' ||
           first == u'\u2029';
}

}  // namespace

DDHotKeyTextFieldEditor::DDHotKeyTextFieldEditor(QObject* parent) : QObject(parent) {}

DDHotKeyTextField* DDHotKeyTextFieldEditor::hotKeyField() const {
    return _hotKeyField;
}

void DDHotKeyTextFieldEditor::setHotKeyField(DDHotKeyTextField* field) {
    _hotKeyField = field;
    _originalHotKey = field != nullptr ? field->hotKey() : nullptr;
}

bool DDHotKeyTextFieldEditor::becomeFirstResponder() {
    if (!_hotKeyField) {
        return false;
    }
    _hasSeenKeyDown = false;
    _heldKey.reset();
    _globalMonitor = true;
    QCoreApplication::instance()->installEventFilter(this);
    return true;
}

void DDHotKeyTextFieldEditor::resignFirstResponder() {
    setHotKeyField(nullptr);
    _globalMonitor = false;
    if (!_heldKey) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
}

bool DDHotKeyTextFieldEditor::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
        case QEvent::KeyRelease:
            break;
        default:
            return QObject::eventFilter(watched, event);
    }
    auto& key = static_cast<QKeyEvent&>(*event);
    const bool isHeld = isHeldRepeat(key);
    if (key.type() == QEvent::KeyRelease || (!_globalMonitor && !isHeld)) {
        return QObject::eventFilter(watched, event);
    }
    if (_globalMonitor && key.type() == QEvent::KeyPress) {
        processHotkeyEvent(key);
    }
    // Accepting the override blocks shortcuts; the key event itself follows.
    key.accept();
    return true;
}

void DDHotKeyTextFieldEditor::hold(const QKeyEvent& event) {
    _heldKey = Key{event.nativeScanCode(), event.key()};
}

void DDHotKeyTextFieldEditor::letHeldKeyGo() {
    _heldKey.reset();
    if (!_globalMonitor) {
        QCoreApplication::instance()->removeEventFilter(this);
    }
}

bool DDHotKeyTextFieldEditor::isHeldRepeat(const QKeyEvent& event) {
    if (!_heldKey) {
        return false;
    }
    // Qt creates some events without a scan code; Qt key names change with the modifiers.
    const bool isHeldKey = event.nativeScanCode() != 0
                               ? event.nativeScanCode() == _heldKey->scanCode
                               : event.key() == _heldKey->name;
    if (event.isAutoRepeat()) {
        return isHeldKey;
    }
    // It was released, or another key was pressed, which stops its repeat.
    if (isHeldKey || event.type() != QEvent::KeyRelease) {
        letHeldKeyGo();
    }
    return false;
}

void DDHotKeyTextFieldEditor::processHotkeyEvent(const QKeyEvent& event) {
    // A repeat belongs to a key that was already held. If its press was ignored, so are its
    // repeats: the Tab that moved the focus here is not a combination.
    if (!_hotKeyField || event.isAutoRepeat() || isModifierEvent(event)) {
        return;
    }
    _hasSeenKeyDown = true;
    const auto keyCode = virtualKeyCode(event);
    const ModifierFlags flags = modifierFlags(event);
    if ((flags & combiningFlags) != 0) {
        if (keyCode) {
            hold(event);
            record(*keyCode, flags);
        }
        return;
    }
    // Also a key that the layout maps to Escape.
    const bool isEscape = keyCode == VirtualKey::escape || event.key() == Qt::Key_Escape;
    if (isEscape || isNewline(event.text())) {
        hold(event);
        if (isEscape) {
            restoreOriginal();
        }
        endEditing();
    }
}

void DDHotKeyTextFieldEditor::record(std::uint16_t keyCode, ModifierFlags modifierFlags) {
    const QPointer<DDHotKeyTextField> field = _hotKeyField;
    field->setHotKey(DDHotKey::hotKeyWithKeyCode(
        keyCode, modifierFlags, _originalHotKey ? _originalHotKey->task() : DDHotKey::Task()));
    Q_EMIT field->hotKeyChanged();
    endEditing();
}

void DDHotKeyTextFieldEditor::restoreOriginal() {
    const QPointer<DDHotKeyTextField> field = _hotKeyField;
    const bool wasReplaced = field->hotKey() != _originalHotKey;
    field->setHotKey(_originalHotKey);
    if (_originalHotKey) {
        field->showCombination(_originalHotKey->keyCode(), _originalHotKey->modifierFlags());
    }
    // If another hot key was set during the recording, report that it was undone.
    if (wasReplaced) {
        Q_EMIT field->hotKeyChanged();
    }
}

void DDHotKeyTextFieldEditor::endEditing() {
    if (_hotKeyField) {
        _hotKeyField->clearFocus();
    }
}

}  // namespace tonquil
