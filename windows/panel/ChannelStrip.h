// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>

#include "windows/panel/PanelSliders.h"

class QToolButton;

namespace tonquil {

/// A slider that always controls the channel of the focused control, with its value and a picker of
/// the channel: all values are within reach in the compact panel and on a touch screen.
class ChannelStrip : public QWidget {
 public:
    /// The sliders must outlive the strip.
    explicit ChannelStrip(const PanelSliders& sliders, QWidget* parent = nullptr);

    /// Called with the panel's slider that corresponds to the strip's, after the strip's value
    /// changed.
    void setAction(std::function<void(TQSlider&)> action) { _moved = std::move(action); }
    /// Called with that slider when the strip's slider is grabbed and released.
    void setInteractionChanged(std::function<void(TQSlider&, bool)> changed) {
        _interactionChanged = std::move(changed);
    }
    /// Called with the control that should get the focus.
    void setFocusAction(std::function<void(QWidget&)> action) { _focus = std::move(action); }

    /// Call whenever another control of the panel gets the focus.
    void updateTouchBarForResponder(QWidget* responder);
    /// Takes the value of the slider that the strip stands for.
    void updateTouchBarSlider();
    void showTab(int tab) { updateTouchBarChannelImagesForTab(tab); }
    void _setControlsEnabled(bool enabled);
    void letGo();

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void makePicker();
    void updateTouchBarChannelImagesForTab(int tab);
    void touchBarSliderChanged();
    void valuePickerSelectionChanged(int segment);
    void stepBy(double step);
    [[nodiscard]] TQSlider* mirroredSlider() const;
    void mirror(const TQSlider& slider, Channel channel);
    void showValue();
    void removeSliderUnlessNeeded();

    const PanelSliders& _sliders;
    std::array<QToolButton*, PanelSliders::channelCount> _valuePicker{};
    QToolButton* _minimumValueAccessory;
    TQSlider* _slider;
    QToolButton* _maximumValueAccessory;
    TQVibrantLabel* _value;
    QPointer<QWidget> _responder;
    bool _areControlsEnabled = true;
    std::function<void(TQSlider&)> _moved;
    std::function<void(TQSlider&, bool)> _interactionChanged;
    std::function<void(QWidget&)> _focus;
};

}  // namespace tonquil
