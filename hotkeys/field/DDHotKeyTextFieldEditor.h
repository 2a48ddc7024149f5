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

/// Grabs the keys while a hot-key field records: from `becomeFirstResponder` to
/// `resignFirstResponder` no key press reaches anything else in the program, shortcuts included.
///
/// If the key that ended the recording is still held, its repeats are consumed too, until it is
/// released.
class DDHotKeyTextFieldEditor : public QObject {
    Q_OBJECT

 public:
    explicit DDHotKeyTextFieldEditor(QObject* parent);

    /// The field being edited; null between recordings. Not owned.
    [[nodiscard]] DDHotKeyTextField* hotKeyField() const;
    /// Remembers the field's current hot key, for Escape to restore.
    void setHotKeyField(DDHotKeyTextField* field);

    /// Starts grabbing keys; false, without effect, if there is no field.
    [[nodiscard]] bool becomeFirstResponder();
    void resignFirstResponder();
    /// Whether a key was pressed in the current or last recording.
    [[nodiscard]] bool hasSeenKeyDown() const { return _hasSeenKeyDown; }

    /// Handles a key press; ignores modifiers on their own and repeats.
    void processHotkeyEvent(const QKeyEvent& event);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    /// A key by scan code and by its name in the layout.
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
    /// Whether keys are being grabbed.
    bool _globalMonitor = false;
    /// The key that ended the last recording, until it is released.
    std::optional<Key> _heldKey;
};

}  // namespace tonquil
