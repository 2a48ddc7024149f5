// SPDX-License-Identifier: MIT
#include "windows/panel/PanelSliders.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <algorithm>
#include <cmath>

#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/TQVibrantLabel.h"

namespace tonquil {

namespace {

// In the order of PanelSlider.
constexpr std::array<SliderPlace, panelSliderCount> places{{
    {0, Channel::Master},
    {1, Channel::Master},
    {2, Channel::Master},
    {0, Channel::Red},
    {0, Channel::Green},
    {0, Channel::Blue},
    {1, Channel::Red},
    {1, Channel::Green},
    {1, Channel::Blue},
    {2, Channel::Red},
    {2, Channel::Green},
    {2, Channel::Blue},
}};

struct SliderRange {
    float minimum;
    float maximum;
};

// Levels go from 0 to 1. Exponents have the neutral 1 in the middle and stay above 0, which would
// turn everything white. A master and a channel both at their maximum give 2.8.
constexpr std::array<SliderRange, PanelSliders::tabCount> ranges{
    {{0, 1}, {0.1F, 1.9F}, {0, 1}},
};

/// The range stays fixed during a drag: otherwise it would shift under the pointer.
void fitRange(TQSlider& slider, const SliderRange& range, float value) {
    float minimum = std::min(range.minimum, value);
    float maximum = std::max(range.maximum, value);
    if (slider.isInteracting()) {
        minimum = std::min(minimum, slider.minValue());
        maximum = std::max(maximum, slider.maxValue());
    }
    slider.setRange(minimum, maximum);
}

PanelSlider sliderAt(std::size_t index) {
    return static_cast<PanelSlider>(index);
}

// Masters are never linked.
QStringList hintsFor(Channel channel) {
    QStringList hints{
        QCoreApplication::translate("Panel", "Drag it, or turn the wheel over it or its number."),
        QCoreApplication::translate("Panel", "With Ctrl a drag is four times as fine.")};
    if (channel != Channel::Master) {
        hints.append(QCoreApplication::translate("Panel", "With Shift the other colours follow."));
    }
    hints.append(QCoreApplication::translate("Panel", "A double-click makes it neutral."));
    return hints;
}

}  // namespace

SliderPlace placeOf(PanelSlider slider) {
    return places.at(static_cast<std::size_t>(slider));
}

PanelSlider panelSliderAt(int tab, Channel channel) {
    const auto* found = std::find_if(places.begin(), places.end(), [=](const SliderPlace& place) {
        return place.tab == tab && place.channel == channel;
    });
    return sliderAt(static_cast<std::size_t>(found - places.begin()));
}

QString tabTitle(int tab) {
    switch (tab) {
        case 0:
            return QCoreApplication::translate("Panel", "Black");
        case 2:
            return QCoreApplication::translate("Panel", "White");
        default:
            return QCoreApplication::translate("Panel", "Middle");
    }
}

QString channelTitle(Channel channel) {
    switch (channel) {
        case Channel::Red:
            return QCoreApplication::translate("Panel", "Red");
        case Channel::Green:
            return QCoreApplication::translate("Panel", "Green");
        case Channel::Blue:
            return QCoreApplication::translate("Panel", "Blue");
        default:
            return QCoreApplication::translate("Panel", "Master");
    }
}

PanelSliders::PanelSliders() {
    int labelWidth = 0;
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        Row& row = _rows.at(index);
        row = makeRow(sliderAt(index));
        labelWidth = std::max(labelWidth, row.label->sizeHint().width());
    }
    for (const Row& row : _rows) {
        row.label->setFixedWidth(labelWidth);
    }
    setValues(PanelValues{});
}

PanelSliders::Row PanelSliders::makeRow(PanelSlider slider) {
    const SliderPlace place = placeOf(slider);
    const QString title = channelTitle(place.channel);
    Row row;
    row.widget = new QWidget;
    row.label = new TQVibrantLabel(title);
    row.slider = new TQSlider;
    row.field = new TQNumericTextField;
    const SliderRange& range = ranges.at(static_cast<std::size_t>(place.tab));
    row.slider->setRange(range.minimum, range.maximum);
    row.slider->setNeutralValue(PanelValues{}[slider]);
    row.slider->setChannel(place.channel);
    row.slider->setAuxiliary(row.field);
    _fieldEditorTextView.attach(*row.field);

    TQSlider* const target = row.slider;
    row.label->setDoubleClickAction([target] {
        if (target->isEnabled()) {
            target->takeNeutralValue();
        }
    });
    row.label->setBuddy(row.field);
    const QString name =
        QCoreApplication::translate("Panel", "%1, %2 point").arg(title, tabTitle(place.tab));
    const QStringList hints = hintsFor(place.channel);
    for (QWidget* control : {static_cast<QWidget*>(row.slider), static_cast<QWidget*>(row.field)}) {
        control->setAccessibleName(name);
        control->setAccessibleDescription(hints.join(u' '));
    }
    row.label->setToolTip(hints.join(u'\n'));
    row.slider->setToolTip(row.label->toolTip());

    auto* layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(row.label);
    layout->addWidget(row.slider, 1);
    layout->addWidget(row.field);
    return row;
}

const PanelSliders::Row& PanelSliders::row(PanelSlider slider) const {
    return _rows.at(static_cast<std::size_t>(slider));
}

const PanelSliders::Row& PanelSliders::row(int tab, Channel channel) const {
    return row(panelSliderAt(tab, channel));
}

Channel PanelSliders::channelForResponder(const QWidget* responder) const {
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        const Row& row = _rows.at(index);
        for (const QWidget* control :
             {static_cast<const QWidget*>(row.slider), static_cast<const QWidget*>(row.field)}) {
            if (responder != nullptr &&
                (responder == control || control->isAncestorOf(responder))) {
                return places.at(index).channel;
            }
        }
    }
    return Channel::None;
}

std::vector<TQSlider*> PanelSliders::slidersForChannel(Channel channel) const {
    std::vector<TQSlider*> sliders;
    if (channel != Channel::None) {
        for (int tab = 0; tab < tabCount; ++tab) {
            sliders.push_back(row(tab, channel).slider);
        }
    }
    return sliders;
}

TQSlider* PanelSliders::visibleSliderForChannel(Channel channel) const {
    for (TQSlider* slider : slidersForChannel(channel)) {
        if (slider->isVisibleTo(slider->window())) {
            return slider;
        }
    }
    return nullptr;
}

PanelValues PanelSliders::values() const {
    PanelValues values;
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        values.sliders.at(index) = _rows.at(index).slider->floatValue();
    }
    return values;
}

void PanelSliders::setValues(const PanelValues& values) {
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        const Row& row = _rows.at(index);
        const float wanted = values.sliders.at(index);
        const float value = std::isfinite(wanted) ? wanted : row.slider->neutralValue();
        const bool changes = value != row.slider->floatValue();
        fitRange(*row.slider, ranges.at(static_cast<std::size_t>(places.at(index).tab)), value);
        row.slider->setFloatValue(value);
        if (changes) {
            row.field->setFloatValue(value);
        } else {
            row.field->takeFloatValueFrom(*row.slider);
        }
    }
}

void PanelSliders::revertTyping() {
    for (const Row& row : _rows) {
        row.field->revert();
    }
}

void PanelSliders::letGo() {
    for (const Row& row : _rows) {
        row.slider->letGo();
    }
}

void PanelSliders::setEnabled(bool enabled) {
    for (const Row& row : _rows) {
        row.label->setEnabled(enabled);
        row.slider->setEnabled(enabled);
        row.field->setEnabled(enabled);
    }
}

void PanelSliders::setAction(const std::function<void(PanelSlider)>& action) {
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        _rows.at(index).slider->setAction(
            [action, moved = sliderAt(index)](TQSlider&) { action(moved); });
    }
}

void PanelSliders::setInteractionChanged(const std::function<void(PanelSlider, bool)>& changed) {
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        _rows.at(index).slider->setInteractionChanged(
            [changed, held = sliderAt(index)](TQSlider& slider) {
                changed(held, slider.isInteracting());
            });
    }
}

}  // namespace tonquil
