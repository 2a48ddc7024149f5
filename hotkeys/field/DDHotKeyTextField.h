// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <memory>

#include "hotkeys/DDHotKey.h"
#include "hotkeys/KeyboardLayout.h"

namespace tonquil {

class DDHotKeyTextFieldEditor;
class HotKeyClearButton;

/// Records and shows a key combination.
///
/// A click, Space, Return or a `setFocus` call from the program starts a recording; Tab and window
/// activation only move the focus. The next combination with a modifier, or a function, arrow or
/// navigation key alone, becomes the field's hot key and ends the recording. Return ends it without
/// a change, Escape restores the hot key from before the recording, and losing focus keeps the
/// current one. A button at the end removes the hot key and clears the field. The field registers
/// nothing.
///
/// Combinations that this program has registered with a hot-key service never reach the field:
/// release them from `recordingBegan` to `recordingEnded`.
class DDHotKeyTextField : public QLineEdit {
    Q_OBJECT

 public:
    /// The layout, which provides the key labels, must outlive the field.
    explicit DDHotKeyTextField(const KeyboardLayout& layout, QWidget* parent = nullptr);
    ~DDHotKeyTextField() override;
    Q_DISABLE_COPY_MOVE(DDHotKeyTextField)

    /// The combination; null for none.
    [[nodiscard]] const std::shared_ptr<DDHotKey>& hotKey() const { return _hotKey; }
    /// Shows another hot key, unless it is the same object. Null replacing a hot key shows the text
    /// of key code 0; only the user's clear button empties the field. Emits no signal.
    void setHotKey(std::shared_ptr<DDHotKey> hotKey);

    /// The raw text, with a warning in the log: use `hotKey` and `setHotKey` instead.
    [[nodiscard]] QString stringValue() const;
    void setStringValue(const QString& text);

    [[nodiscard]] bool isRecording() const { return _isRecording; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
    /// The user recorded a combination, even an unchanged one, or removed the hot key. If this ends
    /// a recording, it is emitted before `recordingEnded`.
    void hotKeyChanged();
    void recordingBegan();
    void recordingEnded();

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    friend class DDHotKeyTextFieldEditor;

    void beginRecording();
    void endRecording();
    void showCombination(std::uint16_t keyCode, ModifierFlags modifierFlags);
    void paintPrompt(const QString& prompt);
    void placeClearButton();
    void clearHotKey();

    const KeyboardLayout& _layout;
    std::shared_ptr<DDHotKey> _hotKey;
    /// Owned by this widget.
    HotKeyClearButton* _clearButton;
    /// Grabs the keys during a recording; owned by the application.
    QPointer<DDHotKeyTextFieldEditor> _editor;
    bool _isRecording = false;
};

}  // namespace tonquil
