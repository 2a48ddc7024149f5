// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <optional>

namespace tonquil {

class TQSlider;

/// A field that shows and takes a single-precision number: two decimals at rest, three while it has
/// the focus. The number itself is never rounded by being shown.
///
/// The decimal separator is shown as a point; a comma is taken too. What was typed is committed by
/// Return or when the focus leaves, and taken back by Escape. The
/// click that brings the focus selects all, ready to be typed over. Text that is no number is taken
/// back when it is committed. Set the number with `setFloatValue`, not with `setText`.
class TQNumericTextField : public QLineEdit {
 public:
    explicit TQNumericTextField(QWidget* parent = nullptr);
    ~TQNumericTextField() override = default;
    Q_DISABLE_COPY_MOVE(TQNumericTextField)

    /// The number; while one is being typed, that one, if it is a number already.
    [[nodiscard]] float floatValue() const;
    /// Shows `value` in place of whatever is being typed. What is not finite is ignored. Tells
    /// nobody.
    void setFloatValue(float value);
    /// Shows the slider's value, unless somebody is typing here.
    void takeFloatValueFrom(const TQSlider& slider);

    /// Whether text was typed that is neither committed nor taken back.
    [[nodiscard]] bool isEditing() const;
    /// Hands what was typed to the target, or takes it back if it is no number. Without anything
    /// typed nothing happens.
    void commit();
    /// Shows the number in place of what was typed.
    void revert();

    /// The slider that is told of committed numbers and steps, or null. Not owned.
    [[nodiscard]] TQSlider* target() const;
    void setTarget(TQSlider* target);
    /// Hands a step on to the target, in this field's name.
    void incrementValueOf();
    void decrementValueOf();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    [[nodiscard]] std::optional<float> typedValue() const;
    void showValue();

    float _value = 0;
    /// The text that stands for `_value`, by which a change is told from none.
    QString _shownText;
    QPointer<TQSlider> _target;
    /// The next click to end is the one that brought the focus.
    bool _isFirstClick = false;
};

}  // namespace tonquil
