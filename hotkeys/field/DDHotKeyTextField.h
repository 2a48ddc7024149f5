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

/// A field in which a person records a key combination, and which shows it.
///
/// A click, Space or Return begins a recording, and so does the program by giving the field the
/// focus; Tab and a window that comes to the front only bring the focus. The next combination with
/// a modifier, or a function, arrow or navigation key alone, becomes the field's hot key and ends
/// the recording. Return ends it without a change, Escape puts back what was there when it began, a
/// loss of the focus keeps what is there. A button at the end takes the hot key away and leaves the
/// field empty. Nothing is registered here.
///
/// Combinations that a hot-key service has registered for this program never reach the field: give
/// them up from `recordingBegan` to `recordingEnded`.
class DDHotKeyTextField : public QLineEdit {
    Q_OBJECT

 public:
    /// The layout, which says what keys are called, must outlive the field.
    explicit DDHotKeyTextField(const KeyboardLayout& layout, QWidget* parent = nullptr);
    ~DDHotKeyTextField() override;
    Q_DISABLE_COPY_MOVE(DDHotKeyTextField)

    /// The combination; null for none.
    [[nodiscard]] const std::shared_ptr<DDHotKey>& hotKey() const { return _hotKey; }
    /// Shows a hot key in place of the one before, unless it is the same object. Null in place of a
    /// hot key shows what key code 0 gives; only the person's own button empties the field. Tells
    /// nobody.
    void setHotKey(std::shared_ptr<DDHotKey> hotKey);

    /// The text as such, with a warning in the log: `hotKey` and `setHotKey` are what is meant.
    [[nodiscard]] QString stringValue() const;
    void setStringValue(const QString& text);

    [[nodiscard]] bool isRecording() const { return _isRecording; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
    /// The person recorded a combination, be it the same again, or took the hot key away. While a
    /// recording ends by it, this comes before `recordingEnded`.
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
    /// What catches the keys of a recording; the application owns it.
    QPointer<DDHotKeyTextFieldEditor> _editor;
    bool _isRecording = false;
};

}  // namespace tonquil
