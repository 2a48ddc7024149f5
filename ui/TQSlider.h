// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "ui/FineDrag.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQSliderCell.h"
#include "ui/theme/Channel.h"

namespace tonquil {

/// A slider for a single-precision value that works as one control with the numeric field beside
/// it, its auxiliary.
///
/// The value always lies within the range. Setting it from code does not call the action; user
/// input, here or in the auxiliary, does. Each repaint shows the value in the auxiliary, unless the
/// user is typing there.
///
/// A drag near the neutral value snaps to it. With Ctrl a drag starts at the present value, goes at
/// a quarter of the pointer's speed and does not snap.
class TQSlider : public QWidget {
 public:
    using Action = std::function<void(TQSlider& sender)>;

    /// How far an arrow key moves the value.
    static constexpr double alternateIncrement = 0.01;
    /// How far Page Up and Page Down move it.
    static constexpr double pageIncrement = 0.1;

    /// The range is 0 to 1; the value and the neutral value are 0.
    explicit TQSlider(QWidget* parent = nullptr);
    ~TQSlider() override = default;
    Q_DISABLE_COPY_MOVE(TQSlider)

    [[nodiscard]] float floatValue() const { return _value; }
    /// Sets `value`, clamped to the range; ignores not-a-number. Always repaints.
    void setFloatValue(float value);
    [[nodiscard]] float minValue() const { return _minimum; }
    [[nodiscard]] float maxValue() const { return _maximum; }
    /// Does nothing unless both ends are finite and `minimum` is not above `maximum`. Clamps the
    /// value to the new range.
    void setRange(float minimum, float maximum);

    /// The value that leaves the picture unchanged, marked by a notch.
    [[nodiscard]] float neutralValue() const { return _neutralValue; }
    void setNeutralValue(float value);
    /// Sets the neutral value and calls the action, as a double-click does.
    void takeNeutralValue();

    /// The paired field, or null. Not owned; it may be destroyed before the slider.
    [[nodiscard]] TQNumericTextField* auxiliary() const { return _auxiliary; }
    /// Pairs the slider with a field and becomes the field's target. Null ends the pairing.
    void setAuxiliary(TQNumericTextField* auxiliary);

    /// Called with the value after every change by the user, even if clamping left the value as it
    /// was; not for a press on the fill's end, which moves nothing.
    void setAction(Action action) { _action = std::move(action); }
    void sendAction();

    /// Called when the mouse button is pressed on the slider, before the value changes, and when it
    /// is released, or the slider is hidden, disabled or let go; `isInteracting` tells which.
    void setInteractionChanged(Action changed) { _interactionChanged = std::move(changed); }
    [[nodiscard]] bool isInteracting() const { return _isInteracting; }
    /// Ends a drag although the mouse button is down.
    void letGo() { setInteracting(false); }

    [[nodiscard]] Channel channel() const { return _channel; }
    /// Draws the fill in the channel's colour of the current theme; `None` uses `cell().color()`.
    void setChannel(Channel channel);
    [[nodiscard]] TQSliderCell& cell() { return _cell; }
    [[nodiscard]] const TQSliderCell& cell() const { return _cell; }

    /// Steps the field by 0.01 without clamping, takes its value, clamped, and calls the action;
    /// the next repaint shows the clamped value in the field.
    void incrementValueOf(TQNumericTextField& sender);
    void decrementValueOf(TQNumericTextField& sender);
    /// Steps the value and calls the action; false for an event that turns nothing.
    bool scrollWheel(const QWheelEvent& event);
    /// Takes the value entered in the auxiliary, writes it back clamped to the range, and calls the
    /// action. Ignores any other sender.
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
    void takeValueAt(double x, bool isFine);
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
    /// Where the fill's end is dragged to, in points from the left.
    FineDrag _drag;
    bool _showsFocusRing = false;
};

}  // namespace tonquil
