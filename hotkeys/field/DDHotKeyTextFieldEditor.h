// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <cstdint>
#include <memory>
#include <optional>

#include "hotkeys/DDHotKey.h"

class QKeyEvent;

namespace tonquil {

class DDHotKeyTextField;

/// Catches the keys while a hot-key field records: from `becomeFirstResponder` to
/// `resignFirstResponder` no key that goes down reaches anything else in the program, shortcuts
/// included.
///
/// A key that ended the recording and is still held goes on repeating; those repeats are caught
/// too, until it goes up.
class DDHotKeyTextFieldEditor : public QObject {
    Q_OBJECT

 public:
    explicit DDHotKeyTextFieldEditor(QObject* parent);

    /// The field being edited; null between recordings. Not owned.
    [[nodiscard]] DDHotKeyTextField* hotKeyField() const;
    /// Takes the field's present hot key for what Escape puts back.
    void setHotKeyField(DDHotKeyTextField* field);

    /// Begins to catch keys; false, with nothing begun, without a field.
    [[nodiscard]] bool becomeFirstResponder();
    void resignFirstResponder();
    /// Whether a key went down in the present or the last recording.
    [[nodiscard]] bool hasSeenKeyDown() const { return _hasSeenKeyDown; }

    /// Takes a key that went down; modifiers by themselves and repeats change nothing.
    void processHotkeyEvent(const QKeyEvent& event);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    /// A key as the keyboard numbers it and as the layout names it.
    struct Key {
        std::uint32_t scanCode;
        int name;
    };

    void record(std::uint16_t keyCode, ModifierFlags modifierFlags);
    void restoreOriginal();
    void endEditing();
    void hold(const QKeyEvent& event);
    void letHeldKeyGo();
    [[nodiscard]] bool isHeldRepeat(const QKeyEvent& event);

    QPointer<DDHotKeyTextField> _hotKeyField;
    std::shared_ptr<DDHotKey> _originalHotKey;
    bool _hasSeenKeyDown = false;
    /// Whether keys are being caught.
    bool _globalMonitor = false;
    /// What ended the last recording, until it goes up.
    std::optional<Key> _heldKey;
};

}  // namespace tonquil
