// SPDX-License-Identifier: MIT
#include "windows/panel/ChannelStrip.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QTimer>
#include <QToolButton>

#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/TQVibrantLabel.h"
#include "ui/theme/Appearance.h"
#include "ui/theme/Theme.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

QToolButton* makeButton(QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(24, 24);
    return button;
}

QToolButton* makeStepButton(PanelIcon icon, const QString& name, QWidget* parent) {
    QToolButton* button = makeButton(parent);
    button->setIcon(panelIcon(icon));
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRepeat(true);
    return button;
}

}  // namespace

ChannelStrip::ChannelStrip(const PanelSliders& sliders, QWidget* parent)
    : QWidget(parent),
      _sliders(sliders),
      _minimumValueAccessory(
          makeStepButton(PanelIcon::Less, QCoreApplication::translate("Panel", "Less"), this)),
      _slider(new TQSlider(this)),
      _maximumValueAccessory(
          makeStepButton(PanelIcon::More, QCoreApplication::translate("Panel", "More"), this)),
      _value(new TQVibrantLabel({}, this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    makePicker();
    for (QToolButton* segment : _valuePicker) {
        layout->addWidget(segment);
    }
    layout->addSpacing(4);
    layout->addWidget(_minimumValueAccessory);
    layout->addWidget(_slider, 1);
    layout->addWidget(_maximumValueAccessory);
    layout->addWidget(_value);
    _value->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    _value->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0.00")) + 4);

    // Without the slider its neighbours stay where they are.
    QSizePolicy policy = _slider->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    _slider->setSizePolicy(policy);
    _slider->setMinimumWidth(64);
    // The strip follows the focus and never takes it.
    _slider->setFocusPolicy(Qt::NoFocus);
    _slider->setAccessibleName(QCoreApplication::translate("Panel", "Focused value"));
    setAccessibleName(QCoreApplication::translate("Panel", "Channel strip"));
    setAccessibleDescription(QCoreApplication::translate(
        "Panel", "Stands for the slider of the focused control; its picker moves the focus."));
    _slider->setInteractionChanged([this](const TQSlider& slider) {
        if (TQSlider* mirrored = mirroredSlider()) {
            _interactionChanged(*mirrored, slider.isInteracting());
        }
    });
    _slider->setAction([this](TQSlider&) { touchBarSliderChanged(); });
    QObject::connect(_minimumValueAccessory, &QToolButton::clicked, this,
                     [this] { stepBy(-TQSlider::alternateIncrement); });
    QObject::connect(_maximumValueAccessory, &QToolButton::clicked, this,
                     [this] { stepBy(TQSlider::alternateIncrement); });
    updateTouchBarChannelImagesForTab(1);
}

void ChannelStrip::makePicker() {
    for (int segment = 0; segment < PanelSliders::channelCount; ++segment) {
        QToolButton* button = makeButton(this);
        button->setCheckable(true);
        const QString name = channelTitle(static_cast<Channel>(segment));
        button->setAccessibleName(name);
        button->setToolTip(name);
        QObject::connect(button, &QToolButton::clicked, this,
                         [this, segment] { valuePickerSelectionChanged(segment); });
        _valuePicker.at(static_cast<std::size_t>(segment)) = button;
    }
}

void ChannelStrip::updateTouchBarChannelImagesForTab(int tab) {
    for (int segment = 0; segment < PanelSliders::channelCount; ++segment) {
        _valuePicker.at(static_cast<std::size_t>(segment))
            ->setIcon(channelIcon(static_cast<Channel>(segment), tab));
    }
}

TQSlider* ChannelStrip::mirroredSlider() const {
    return _sliders.visibleSliderForChannel(_sliders.channelForResponder(_responder));
}

void ChannelStrip::updateTouchBarForResponder(QWidget* responder) {
    _responder = responder;
    const Channel channel = _sliders.channelForResponder(responder);
    for (int segment = 0; segment < PanelSliders::channelCount; ++segment) {
        _valuePicker.at(static_cast<std::size_t>(segment))
            ->setChecked(segment == static_cast<int>(channel));
    }
    _setControlsEnabled(_areControlsEnabled);
    if (const TQSlider* slider = _sliders.visibleSliderForChannel(channel)) {
        mirror(*slider, channel);
        _slider->show();
    } else {
        // The focus may just be moving to another slider.
        QTimer::singleShot(0, this, [this] { removeSliderUnlessNeeded(); });
    }
}

void ChannelStrip::mirror(const TQSlider& slider, Channel channel) {
    const QColor colour = themeOf(*this).channel(channel);
    // Half white would hardly differ from the light theme's track.
    const bool isDark = effectiveAppearance(*this).isDark;
    _slider->cell().setColor(isDark ? blendedWithWhite(colour, 0.5) : colour);
    _slider->setRange(slider.minValue(), slider.maxValue());
    _slider->setNeutralValue(slider.neutralValue());
    _slider->setFloatValue(slider.floatValue());
    showValue();
}

void ChannelStrip::showValue() {
    _value->setText(QString::number(static_cast<double>(_slider->floatValue()), 'f', 2));
}

void ChannelStrip::removeSliderUnlessNeeded() {
    if (mirroredSlider() == nullptr) {
        _slider->hide();
        _value->clear();
    }
}

void ChannelStrip::updateTouchBarSlider() {
    const TQSlider* slider = mirroredSlider();
    if (slider != nullptr && slider->floatValue() != _slider->floatValue()) {
        _slider->setRange(slider->minValue(), slider->maxValue());
        _slider->setFloatValue(slider->floatValue());
        showValue();
    }
}

void ChannelStrip::touchBarSliderChanged() {
    if (TQSlider* slider = mirroredSlider()) {
        slider->setFloatValue(_slider->floatValue());
        showValue();
        _moved(*slider);
    }
}

void ChannelStrip::stepBy(double step) {
    _slider->setFloatValue(static_cast<float>(_slider->floatValue() + step));
    touchBarSliderChanged();
}

void ChannelStrip::valuePickerSelectionChanged(int segment) {
    const auto picked = static_cast<Channel>(segment);
    if (picked != _sliders.channelForResponder(_responder)) {
        if (const TQSlider* slider = _sliders.visibleSliderForChannel(picked)) {
            _focus(*slider->auxiliary());
        }
    }
    // Clicking the selected segment must not deselect it.
    updateTouchBarForResponder(_responder);
}

void ChannelStrip::letGo() {
    _slider->letGo();
}

void ChannelStrip::_setControlsEnabled(bool enabled) {
    _areControlsEnabled = enabled;
    const bool hasChannel = _sliders.channelForResponder(_responder) != Channel::None;
    _slider->setEnabled(enabled && hasChannel);
    _minimumValueAccessory->setEnabled(enabled && hasChannel);
    _maximumValueAccessory->setEnabled(enabled && hasChannel);
    _value->setEnabled(enabled && hasChannel);
}

void ChannelStrip::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        if (const TQSlider* slider = mirroredSlider()) {
            mirror(*slider, _sliders.channelForResponder(_responder));
        }
    }
}

}  // namespace tonquil
