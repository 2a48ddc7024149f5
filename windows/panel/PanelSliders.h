// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "app/panel/PanelValues.h"
#include "ui/TQNumericTextView.h"
#include "ui/theme/Channel.h"

class QWidget;

namespace tonquil {

class TQNumericTextField;
class TQSlider;
class TQVibrantLabel;

/// The panel's twelve sliders with their number fields and labels, by point and channel.
///
/// The widgets belong to the layout they are put in, which must live as long as this object.
class PanelSliders {
 public:
    static constexpr int tabCount = 3;
    static constexpr int channelCount = 4;

    /// A slider with the widgets next to it.
    struct Row {
        QWidget* widget = nullptr;
        TQVibrantLabel* label = nullptr;
        TQSlider* slider = nullptr;
        TQNumericTextField* field = nullptr;
    };

    /// Creates the rows, without a parent.
    PanelSliders();

    [[nodiscard]] const Row& row(PanelSlider slider) const;
    /// The row for a tab (0 black, 1 middle, 2 white) and a channel other than `None`.
    [[nodiscard]] const Row& row(int tab, Channel channel) const;
    [[nodiscard]] TQSlider& slider(PanelSlider slider) const { return *row(slider).slider; }

    /// The channel of a slider, a number field or a widget inside one; `None` for anything else.
    [[nodiscard]] Channel channelForResponder(const QWidget* responder) const;
    /// The black, middle and white sliders; empty for `None`.
    [[nodiscard]] std::vector<TQSlider*> slidersForChannel(Channel channel) const;
    /// The one among them on the visible tab, or null.
    [[nodiscard]] TQSlider* visibleSliderForChannel(Channel channel) const;

    [[nodiscard]] PanelValues values() const;
    /// Sets sliders and fields, discarding text being typed where the value changes. A slider's
    /// range grows to hold a value beyond it. Not-a-number shows as neutral.
    void setValues(const PanelValues& values);
    void revertTyping();
    void letGo();
    void setEnabled(bool enabled);
    /// Called with the slider that the user moved.
    void setAction(const std::function<void(PanelSlider)>& action);
    /// Called when the user grabs a slider and releases it.
    void setInteractionChanged(const std::function<void(PanelSlider, bool)>& changed);

 private:
    [[nodiscard]] Row makeRow(PanelSlider slider);

    TQNumericTextView _fieldEditorTextView;
    std::array<Row, panelSliderCount> _rows;
};

/// A slider's position in the panel.
struct SliderPlace {
    int tab;
    Channel channel;
};
[[nodiscard]] SliderPlace placeOf(PanelSlider slider);
/// The slider of a tab (0 black, 1 middle, 2 white) and a channel other than `None`.
[[nodiscard]] PanelSlider panelSliderAt(int tab, Channel channel);

/// The titles shown to the user.
[[nodiscard]] QString tabTitle(int tab);
[[nodiscard]] QString channelTitle(Channel channel);

}  // namespace tonquil
