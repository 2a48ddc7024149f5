// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <optional>

namespace tonquil {

class TQSlider;

/// A field that shows and accepts a single-precision number: two decimals at rest, three while
/// focused. Showing the number never rounds it.
///
/// The decimal separator is shown as a point; a comma is accepted too. Return or losing the focus
/// commits what was typed, Escape reverts it. The click that focuses the field selects all, ready
/// to be typed over. The wheel steps the target, from what was typed. Committing text that is no
/// number reverts it. Set the number with `setFloatValue`, not with `setText`.
class TQNumericTextField : public QLineEdit {
 public:
    explicit TQNumericTextField(QWidget* parent = nullptr);
    ~TQNumericTextField() override = default;
    Q_DISABLE_COPY_MOVE(TQNumericTextField)

    /// The number; during editing the typed one, if it is valid so far.
    [[nodiscard]] float floatValue() const;
    /// Shows `value`, replacing any text being typed. Ignores values that are not finite. Notifies
    /// nobody.
    void setFloatValue(float value);
    /// Shows the slider's value, unless the user is typing here.
    void takeFloatValueFrom(const TQSlider& slider);

    /// Whether text was typed that is neither committed nor reverted yet.
    [[nodiscard]] bool isEditing() const;
    /// Sends what was typed to the target, or reverts it if it is no number. Does nothing if
    /// nothing was typed.
    void commit();
    /// Shows the number again, discarding what was typed.
    void revert();

    /// The slider that receives committed numbers and steps, or null. Not owned.
    [[nodiscard]] TQSlider* target() const;
    void setTarget(TQSlider* target);
    /// Forwards a step to the target, with this field as the sender.
    void incrementValueOf();
    void decrementValueOf();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    [[nodiscard]] std::optional<float> typedValue() const;
    void showValue();

    float _value = 0;
    /// The text shown for `_value`, to tell whether the user changed it.
    QString _shownText;
    QPointer<TQSlider> _target;
    /// The next click to end is the one that focused the field.
    bool _isFirstClick = false;
    bool _showsFocusRing = false;
};

}  // namespace tonquil
