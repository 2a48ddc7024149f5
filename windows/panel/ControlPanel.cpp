// SPDX-License-Identifier: MIT
#include "windows/panel/ControlPanel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QStackedWidget>
#include <QStyleHints>
#include <QToolButton>
#include <QWindow>

#include "ui/EditablePlot.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQSlider.h"
#include "ui/TQVibrantMatrix.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"
#include "windows/menus/ProblemText.h"
#include "windows/panel/ChannelStrip.h"
#include "windows/panel/FormChevron.h"
#include "windows/panel/PanelIcons.h"
#include "windows/panel/TitleStrip.h"

namespace tonquil {

namespace {

constexpr double windowRadius = 10;
constexpr int glideMilliseconds = 100;
/// The minimum time between two redraws of the plot, however fast a slider moves.
constexpr int plotMilliseconds = 16;
/// Steps closer together than this are undone together.
constexpr int editEndMilliseconds = 800;

}  // namespace

ControlPanel::ControlPanel(WindowSystem& windowSystem)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      _windowSystem(windowSystem),
      _contents(new PanelContents(_menu, this)),
      _plotEditing(*_contents->plot, _contents->sliders) {
    setWindowTitle(QCoreApplication::translate("Panel", "Tonquil"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAcceptDrops(true);
    // Whether a window has an alpha channel is fixed at its creation; whether a compositor uses it
    // may change at any time.
    setAttribute(Qt::WA_TranslucentBackground);
    _plotTimer.setSingleShot(true);
    _plotTimer.setInterval(plotMilliseconds);
    QObject::connect(&_plotTimer, &QTimer::timeout, this, [this] { drawPlot(); });
    _editEndTimer.setSingleShot(true);
    QObject::connect(&_editEndTimer, &QTimer::timeout, this, [this] { _actions->endEdit(); });
    _glide.setDuration(glideMilliseconds);
    QObject::connect(&_glide, &QVariantAnimation::valueChanged, this,
                     [this](const QVariant& height) { setHeight(height.toInt()); });
    _appearance.allowsVibrancy = windowSystem.isCompositing();
    setAccessibilityOptions({});
    fitForm(false);
}

// The window loses the keyboard focus during destruction, which would commit the text being typed
// while half of the panel is already destroyed.
ControlPanel::~ControlPanel() {
    _contents->sliders.revertTyping();
}

void ControlPanel::setActions(PanelActions& actions) {
    _actions = &actions;
    _menu.setActions(actions, *this);
    connectControls();
    connectWays();
    addKeys();
}

void ControlPanel::connectControls() {
    PanelContents& contents = *_contents;
    contents.sliders.setAction([this](PanelSlider slider) { moved(slider); });
    contents.sliders.setInteractionChanged(
        [this](PanelSlider slider, bool isHeld) { heldSlider(slider, isHeld); });
    for (std::size_t index = 0; index < panelSliderCount; ++index) {
        contents.sliders.row(static_cast<PanelSlider>(index)).field->installEventFilter(this);
    }
    contents.gammaTabSelector->setAction([this](int column) { pickTab(column); });
    contents.channelStrip->setFocusAction([this](QWidget& field) { makeFirstResponder(field); });
    contents.channelStrip->setAction([](TQSlider& slider) { slider.sendAction(); });
    contents.channelStrip->setInteractionChanged([this](TQSlider& slider, bool isHeld) {
        for (std::size_t index = 0; index < panelSliderCount; ++index) {
            if (&_contents->sliders.slider(static_cast<PanelSlider>(index)) == &slider) {
                heldSlider(static_cast<PanelSlider>(index), isHeld);
            }
        }
    });
    contents.titleStrip->setCloseAction([this] { close(); });
    contents.titleStrip->setHasWindowManager([this] { return _windowSystem.hasWindowManager(); });
    contents.titleStrip->setRemoteAction([this] { _actions->openPreferences(); });
    QObject::connect(contents.applyCorrectionBox, &QCheckBox::clicked, this,
                     [this](bool isOn) { _actions->changeApplyCorrection(isOn); });
    QObject::connect(contents.resetButton, &QToolButton::clicked, this,
                     [this] { _actions->resetGamma(); });
    QObject::connect(contents.colorTargetButton, &QToolButton::clicked, this,
                     [this] { _actions->openTargetWindow(); });
    QObject::connect(contents.blendingModePopUp, &QComboBox::activated, this, [this] {
        _blendingMode = _contents->blendingModePopUp->currentData().toInt();
        _actions->changeBlendingMode();
    });
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) {
            firstResponderChanged(now);
        }
    });
}

void ControlPanel::setAccessibilityOptions(const AccessibilityOptions& options) {
    _wantedOptions = options;
    _appearance.options = options;
    _appearance.options.reduceTransparency |= !_appearance.allowsVibrancy;
    setAppearances();
}

void ControlPanel::updateCompositing() {
    const bool isCompositing = _windowSystem.isCompositing();
    if (isCompositing != _appearance.allowsVibrancy) {
        _appearance.allowsVibrancy = isCompositing;
        setAccessibilityOptions(_wantedOptions);
        update();
    }
}

PanelValues ControlPanel::values() const {
    PanelValues values = _contents->sliders.values();
    values.blendingMode = _blendingMode;
    return values;
}

void ControlPanel::setValues(const PanelValues& values) {
    _contents->sliders.setValues(values);
    selectBlendingMode(values.blendingMode);
}

void ControlPanel::setSlider(PanelSlider slider, float value) {
    _contents->sliders.slider(slider).setFloatValue(value);
}

// The mode is stored separately, because the menu may not contain it.
void ControlPanel::selectBlendingMode(std::int32_t blendingMode) {
    _blendingMode = blendingMode;
    QComboBox& popUp = *_contents->blendingModePopUp;
    popUp.setCurrentIndex(popUp.findData(blendingMode));
}

void ControlPanel::updateTouchBarSlider() {
    _contents->channelStrip->updateTouchBarSlider();
}

void ControlPanel::_setControlsEnabled(bool enabled) {
    // Disabling a focused control would pass the focus on to the next one, and the next key press
    // would act there.
    if (!enabled && !_focusToReturn && focusWidget() != nullptr) {
        _focusToReturn = focusWidget();
        setFocus();
    }
    _contents->sliders.setEnabled(enabled);
    _contents->channelStrip->_setControlsEnabled(enabled);
    _contents->blendingLabel->setEnabled(enabled);
    _contents->blendingModePopUp->setEnabled(enabled);
    _contents->resetButton->setEnabled(enabled);
    _plotEditing.setEnabled(enabled);
    _menu.setEditingEnabled(enabled);
    if (_focusToReturn && _focusToReturn->isEnabled()) {
        if (focusWidget() == this) {
            _focusToReturn->setFocus();
        }
        _focusToReturn = nullptr;
    }
}

void ControlPanel::letGo() {
    _contents->sliders.letGo();
    _contents->channelStrip->letGo();
    _contents->plot->letGo();
}

void ControlPanel::showCorrection(bool isOn) {
    _isCorrected = isOn;
    _contents->applyCorrectionBox->setChecked(isOn);
    _contents->compareButton->setEnabled(isOn);
    _contents->plot->setInForce(isOn && !_isCompared);
}

void ControlPanel::showSubject(const PanelSubject& subject) {
    _contents->titleStrip->showSubject(subject);
    _contents->plot->setMessage(obstacleText(subject));
}

void ControlPanel::updatePlot() {
    if (!_plotTimer.isActive()) {
        _plotTimer.start();
    }
}

void ControlPanel::drawPlot() {
    const auto curves = _actions == nullptr ? std::nullopt : _actions->plottedCurves();
    const auto levels = [&](const GammaTable& table) {
        return CurvePlot::Levels{table.channel(0).first(curves->sampleCount),
                                 table.channel(1).first(curves->sampleCount),
                                 table.channel(2).first(curves->sampleCount)};
    };
    if (curves) {
        _contents->plot->setCurves(levels(curves->result));
        _contents->plot->setBase(levels(curves->base));
    } else {
        _contents->plot->setCurves({});
        _contents->plot->setBase({});
    }
}

void ControlPanel::showUndo(bool canUndo, bool canRedo) {
    _menu.showUndo(canUndo, canRedo);
}

void ControlPanel::moved(PanelSlider slider) {
    const bool isLinked = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    _wasLastEditHeld = _isSliderHeld;
    _actions->applyGamma(slider, isLinked);
    if (!_wasLastEditHeld) {
        _editEndTimer.start(editEndMilliseconds);
    }
}

void ControlPanel::heldSlider(PanelSlider slider, bool isHeld) {
    _isSliderHeld = isHeld;
    if (!isHeld) {
        _contents->plot->setMarkedPoint(std::nullopt);
        // A second click may turn it into a double-click, which is undone as one edit.
        _editEndTimer.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        return;
    }
    _editEndTimer.stop();
    if (!_wasLastEditHeld) {
        _actions->endEdit();
    }
    const SliderPlace place = placeOf(slider);
    constexpr std::array points{CurvePlot::CurvePoint::Black, CurvePlot::CurvePoint::Middle,
                                CurvePlot::CurvePoint::White};
    _contents->plot->setMarkedPoint(
        CurvePlot::MarkedPoint{points.at(static_cast<std::size_t>(place.tab)), place.channel});
    // A slider dragged through the channel strip already has the focus.
    if (_contents->sliders.slider(slider).isInteracting()) {
        firstResponderChanged(&_contents->sliders.slider(slider));
    }
}

void ControlPanel::pickTab(int tab) {
    const Channel channel = _contents->sliders.channelForResponder(_firstResponder);
    _actions->setSelectedTab(tab);
    // The focused control is hidden now, so its counterpart on this tab gets the focus. If the tab
    // selector has the focus, it keeps it.
    if (channel != Channel::None) {
        makeFirstResponder(*_contents->sliders.row(tab, channel).field);
    }
}

void ControlPanel::showTab(int index) {
    _selectedTab = index;
    _contents->showTab(index);
    _plotEditing.showTab(index);
}

void ControlPanel::focusMasterOfSelectedTab() {
    makeFirstResponder(*_contents->sliders.row(_selectedTab, Channel::Master).field);
    _contents->channelStrip->updateTouchBarForResponder(_firstResponder);
}

void ControlPanel::observeFirstResponder() {
    _observesFirstResponder = true;
}

void ControlPanel::makeFirstResponder(QWidget& control) {
    control.setFocus(Qt::OtherFocusReason);
    if (auto* field = dynamic_cast<TQNumericTextField*>(&control)) {
        field->selectAll();
    }
    firstResponderChanged(&control);
}

// Qt reports focus changes only while the window has the keyboard focus, which the panel mostly
// does not.
void ControlPanel::firstResponderChanged(QWidget* control) {
    // The plot acts for the control that was focused before: where points lie together, its
    // channel is preferred.
    if (control == _contents->plot) {
        return;
    }
    _firstResponder = control;
    _contents->plot->setPreferredChannel(_contents->sliders.channelForResponder(control));
    if (_observesFirstResponder) {
        _contents->channelStrip->updateTouchBarForResponder(control);
    }
}

void ControlPanel::_setDarkTheme(bool dark) {
    if (_appearance.isDark != dark) {
        _appearance.isDark = dark;
        setAppearances();
    }
    _menu.showForm(_isAdvanced, dark, !_contents->channelStrip->isHidden());
}

void ControlPanel::setAppearances() {
    setApplicationAppearance(_appearance);
    setAppearance(*this, _appearance);
    for (QWidget* view : vibrantViews()) {
        setAppearance(*view, _appearance);
    }
}

std::vector<QWidget*> ControlPanel::vibrantViews() const {
    return {_contents->gammaTabs,          _contents->blendingModePopUp, _contents->gammaTabColours,
            _contents->applyCorrectionBox, _contents->gammaTabSelector,  _contents,
            _contents->colorTargetButton};
}

void ControlPanel::_setAdvancedPanel(bool advanced) {
    const bool becomesCompact = _isAdvanced && !advanced;
    _isAdvanced = advanced;
    fitForm(true);
    _contents->chevron->showForm(advanced);
    // In the compact form the channel strip itself focuses fields that are cut off.
    if (becomesCompact && focusWidget() != nullptr && isCutOff(*focusWidget())) {
        focusMasterOfSelectedTab();
    }
    _menu.showForm(advanced, _appearance.isDark, !_contents->channelStrip->isHidden());
}

void ControlPanel::showChannelStrip(bool isShown) {
    if (isShown != _contents->channelStrip->isHidden()) {
        return;
    }
    _contents->channelStrip->setVisible(isShown);
    fitForm(false);
    _menu.showForm(_isAdvanced, _appearance.isDark, isShown);
}

void ControlPanel::fitForm(bool mayGlide) {
    _contents->fit();
    setFixedWidth(_contents->width());
    setMinimumHeight(_contents->compactHeight());
    setMaximumHeight(_contents->advancedHeight());
    const int target = _isAdvanced ? maximumHeight() : minimumHeight();
    const bool isAlreadyThere = _glide.state() == QVariantAnimation::Running
                                    ? _glide.endValue().toInt() == target
                                    : height() == target;
    if (isAlreadyThere) {
        return;
    }
    _glide.stop();
    if (mayGlide && isVisible() && !_appearance.options.reduceMotion) {
        _glide.setStartValue(height());
        _glide.setEndValue(target);
        _glide.start();
    } else {
        setHeight(target);
    }
}

// The upper edge stays where it is.
void ControlPanel::setHeight(int height) {
    resize(width(), height);
}

void ControlPanel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Theme& theme = themeFor(_appearance);
    QColor background = theme.panel;
    const bool isBlended = _appearance.allowsVibrancy;
    if (isBlended && !_appearance.options.reduceTransparency) {
        background.setAlphaF(static_cast<float>(theme.panelOpacity));
    }
    const double radius = isBlended ? windowRadius : 0;
    painter.setRenderHint(QPainter::Antialiasing, isBlended);
    fillRounded(painter, rect(), radius, background);
    painter.setClipRect(_contents->titleStrip->geometry());
    fillRounded(painter, rect(), radius, theme.field);
    painter.setClipping(false);
    drawRoundedFrame(painter, rect(), radius, 0, theme.hairline);
}

}  // namespace tonquil
