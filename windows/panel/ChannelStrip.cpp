// SPDX-License-Identifier: MIT
#include "windows/panel/ChannelStrip.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/theme/Appearance.h"
#include "ui/theme/Theme.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

QToolButton* makeButton(QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QToolButton* makeStepButton(const QString& text, const QString& name, QWidget* parent) {
    QToolButton* button = makeButton(parent);
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(name);
    button->setAutoRepeat(true);
    button->setFixedSize(20, 24);
    return button;
}

}  // namespace

ChannelStrip::ChannelStrip(const PanelSliders& sliders, QWidget* parent)
    : QWidget(parent),
      _sliders(sliders),
      _gammaTabPopover(makeButton(this)),
      _minimumValueAccessory(makeStepButton(QStringLiteral("\u2212"),
                                            QCoreApplication::translate("Panel", "Less"), this)),
      _slider(new TQSlider(this)),
      _maximumValueAccessory(
          makeStepButton(QStringLiteral("+"), QCoreApplication::translate("Panel", "More"), this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    _gammaTabPopover->setAccessibleName(QCoreApplication::translate("Panel", "Point"));
    auto* tabs = new QMenu(_gammaTabPopover);
    int widest = 0;
    for (int tab = 0; tab < PanelSliders::tabCount; ++tab) {
        const QString title = tabTitle(tab);
        widest = std::max(widest, fontMetrics().horizontalAdvance(title));
        QObject::connect(tabs->addAction(title), &QAction::triggered, this,
                         [this, tab] { _pickTab(tab); });
    }
    _tabMenu = tabs;
    QObject::connect(_gammaTabPopover, &QToolButton::clicked, tabs, [this] {
        _tabMenu->popup(_gammaTabPopover->mapToGlobal(_gammaTabPopover->rect().bottomLeft()));
    });
    _gammaTabPopover->setFixedWidth(widest + 18);
    layout->addWidget(_gammaTabPopover);
    makePicker();
    for (QToolButton* segment : _valuePicker) {
        layout->addWidget(segment);
    }
    layout->addWidget(_minimumValueAccessory);
    layout->addWidget(_slider, 1);
    layout->addWidget(_maximumValueAccessory);

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
    showTab(_tab);
}

void ChannelStrip::makePicker() {
    for (int segment = 0; segment < PanelSliders::channelCount; ++segment) {
        QToolButton* button = makeButton(this);
        button->setCheckable(true);
        button->setFixedSize(24, 24);
        const QString name = channelTitle(static_cast<Channel>(segment));
        button->setAccessibleName(name);
        button->setToolTip(name);
        QObject::connect(button, &QToolButton::clicked, this,
                         [this, segment] { valuePickerSelectionChanged(segment); });
        _valuePicker.at(static_cast<std::size_t>(segment)) = button;
    }
}

void ChannelStrip::updateTouchBarChannelImagesForTab(int tab) {
    const auto images = touchBarChannelImagesForTab(tab, effectiveAppearance(*this));
    for (std::size_t segment = 0; segment < images.size(); ++segment) {
        _valuePicker.at(segment)->setIcon(images.at(segment));
    }
}

void ChannelStrip::showTab(int tab) {
    _tab = tab;
    _gammaTabPopover->setText(tabTitle(tab) + QStringLiteral(" \u25BE"));
    updateTouchBarChannelImagesForTab(tab);
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
    _slider->cell().setColor(blendedWithWhite(colour, 0.5));
    _slider->setRange(slider.minValue(), slider.maxValue());
    _slider->setNeutralValue(slider.neutralValue());
    _slider->setFloatValue(slider.floatValue());
}

void ChannelStrip::removeSliderUnlessNeeded() {
    if (mirroredSlider() == nullptr) {
        _slider->hide();
    }
}

void ChannelStrip::updateTouchBarSlider() {
    const TQSlider* slider = mirroredSlider();
    if (slider != nullptr && slider->floatValue() != _slider->floatValue()) {
        _slider->setRange(slider->minValue(), slider->maxValue());
        _slider->setFloatValue(slider->floatValue());
    }
}

void ChannelStrip::touchBarSliderChanged() {
    if (TQSlider* slider = mirroredSlider()) {
        slider->setFloatValue(_slider->floatValue());
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

void ChannelStrip::_setControlsEnabled(bool enabled) {
    _areControlsEnabled = enabled;
    const bool hasChannel = _sliders.channelForResponder(_responder) != Channel::None;
    _slider->setEnabled(enabled && hasChannel);
    _minimumValueAccessory->setEnabled(enabled && hasChannel);
    _maximumValueAccessory->setEnabled(enabled && hasChannel);
}

void ChannelStrip::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setAppearance(*_tabMenu, effectiveAppearance(*this));
        showTab(_tab);
        if (const TQSlider* slider = mirroredSlider()) {
            mirror(*slider, _sliders.channelForResponder(_responder));
        }
    }
}

}  // namespace tonquil
