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

/// The panel's twelve sliders with their number fields and labels, by point and by channel.
///
/// The widgets belong to whatever they are laid out in, which must live as long as this object.
class PanelSliders {
 public:
    static constexpr int tabCount = 3;
    static constexpr int channelCount = 4;

    /// One slider with what stands beside it.
    struct Row {
        QWidget* widget = nullptr;
        TQVibrantLabel* label = nullptr;
        TQSlider* slider = nullptr;
        TQNumericTextField* field = nullptr;
    };

    /// Makes the rows, without a parent.
    PanelSliders();

    [[nodiscard]] const Row& row(PanelSlider slider) const;
    /// The row of a tab (0 black, 1 middle, 2 white) and a channel that is not `None`.
    [[nodiscard]] const Row& row(int tab, Channel channel) const;
    [[nodiscard]] TQSlider& slider(PanelSlider slider) const { return *row(slider).slider; }

    /// The channel of a slider or of a number field, or of what lies in one; `None` of all else.
    [[nodiscard]] Channel channelForResponder(const QWidget* responder) const;
    /// The sliders of black, middle and white; none for `None`.
    [[nodiscard]] std::vector<TQSlider*> slidersForChannel(Channel channel) const;
    /// The one of them whose tab is shown, or null.
    [[nodiscard]] TQSlider* visibleSliderForChannel(Channel channel) const;

    [[nodiscard]] PanelValues values() const;
    /// Sets sliders and fields; what is being typed gives way where the value changes. The range
    /// of a slider whose value lies beyond it grows to hold it. What is no number shows as neutral.
    void setValues(const PanelValues& values);
    void revertTyping();
    void setEnabled(bool enabled);
    /// Called with the slider that the person moved.
    void setAction(const std::function<void(PanelSlider)>& action);
    /// Called when the person takes hold of a slider and lets it go.
    void setInteractionChanged(const std::function<void(PanelSlider, bool)>& changed);

 private:
    [[nodiscard]] Row makeRow(PanelSlider slider);

    TQNumericTextView _fieldEditorTextView;
    std::array<Row, panelSliderCount> _rows;
};

/// Where a slider stands in the panel.
struct SliderPlace {
    int tab;
    Channel channel;
};
[[nodiscard]] SliderPlace placeOf(PanelSlider slider);

/// The titles, for people.
[[nodiscard]] QString tabTitle(int tab);
[[nodiscard]] QString channelTitle(Channel channel);

}  // namespace tonquil
