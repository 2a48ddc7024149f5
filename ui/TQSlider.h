// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "ui/TQNumericTextField.h"
#include "ui/TQSliderCell.h"
#include "ui/theme/Channel.h"

namespace tonquil {

/// A slider for a single-precision value, which behaves as one control with the numeric field
/// beside it, its auxiliary.
///
/// The value always lies within the range. Setting it from code sends no action; what the person
/// does, here or in the auxiliary, does. Each drawing shows the value in the auxiliary, unless
/// somebody is typing there.
class TQSlider : public QWidget {
 public:
    using Action = std::function<void(TQSlider& sender)>;

    /// How far an arrow key moves the value.
    static constexpr double alternateIncrement = 0.01;
    /// How far Page Up and Page Down move it.
    static constexpr double pageIncrement = 0.1;

    /// The range is 0 to 1, the value and the neutral value 0.
    explicit TQSlider(QWidget* parent = nullptr);
    ~TQSlider() override = default;
    Q_DISABLE_COPY_MOVE(TQSlider)

    [[nodiscard]] float floatValue() const { return _value; }
    /// Takes `value`, held within the range; not-a-number is ignored. Always repaints.
    void setFloatValue(float value);
    [[nodiscard]] float minValue() const { return _minimum; }
    [[nodiscard]] float maxValue() const { return _maximum; }
    /// Both ends are finite and `minimum` is not above `maximum`, or nothing changes. The value is
    /// moved into the range.
    void setRange(float minimum, float maximum);

    /// The value that leaves the picture as it is, marked by a notch.
    [[nodiscard]] float neutralValue() const { return _neutralValue; }
    void setNeutralValue(float value);
    /// Sets the neutral value and sends the action, as a double-click does.
    void takeNeutralValue();

    /// The paired field, or null. Not owned; it may go before the slider does.
    [[nodiscard]] TQNumericTextField* auxiliary() const { return _auxiliary; }
    /// Pairs the slider with a field, whose target it becomes. Null undoes the pairing.
    void setAuxiliary(TQNumericTextField* auxiliary);

    /// Called with the value set, for every change that the person makes, and also where the range
    /// held the value as it was; not for a press on the fill's end, which moves nothing.
    void setAction(Action action) { _action = std::move(action); }
    void sendAction();

    /// Called when the mouse button goes down on the slider, before the value changes, and when it
    /// is let go, the slider is hidden or it is disabled; `isInteracting` tells which.
    void setInteractionChanged(Action changed) { _interactionChanged = std::move(changed); }
    [[nodiscard]] bool isInteracting() const { return _isInteracting; }

    [[nodiscard]] Channel channel() const { return _channel; }
    /// Draws the fill in the channel's colour of the present theme; `None` in `cell().color()`.
    void setChannel(Channel channel);
    [[nodiscard]] TQSliderCell& cell() { return _cell; }
    [[nodiscard]] const TQSliderCell& cell() const { return _cell; }

    /// Steps the field by 0.01, without a limit, takes its value, within the limits, and sends the
    /// action; the next drawing shows the limited value in the field.
    void incrementValueOf(TQNumericTextField& sender);
    void decrementValueOf(TQNumericTextField& sender);
    /// Takes the value that was entered in the auxiliary, gives it back within the range, and sends
    /// the action. Any other sender is ignored.
    void _updateToAuxiliaryValue(TQNumericTextField& sender);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    [[nodiscard]] double fractionOf(float value) const;
    void stepBy(double step, TQNumericTextField& sender);
    void takeValueAt(double x);
    void setInteracting(bool isInteracting);

    TQSliderCell _cell;
    Channel _channel = Channel::None;
    float _minimum = 0;
    float _maximum = 1;
    float _value = 0;
    float _neutralValue = 0;
    QPointer<TQNumericTextField> _auxiliary;
    Action _action;
    Action _interactionChanged;
    bool _isInteracting = false;
    bool _followsPointer = false;
    /// Where the pointer holds the fill's end, in points to the right of it, and where the pointer
    /// was last.
    double _grip = 0;
    double _gripX = 0;
    bool _showsFocusRing = false;
};

}  // namespace tonquil
