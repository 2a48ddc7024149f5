// SPDX-License-Identifier: MIT
#include "windows/preferences/TQPrefController.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <cstdint>
#include <utility>

#include "app/preferences/SettingsKeys.h"
#include "foundation/TranslatableText.h"
#include "hotkeys/DDHotKey.h"
#include "hotkeys/field/DDHotKeyTextField.h"
#include "windows/front/BringToFront.h"
#include "windows/preferences/PreferencesWindow.h"
#include "windows/preferences/RadioMatrix.h"
#include "windows/preferences/SettingBinding.h"

namespace tonquil {

namespace {

constexpr int firstWithStatusItems = 1138;
constexpr int firstWithDarkTheme = 1343;

void showProblem(QLabel& label, const std::string& sentence) {
    label.setText(QCoreApplication::translate("Problem", sentence.c_str()));
    label.setVisible(!sentence.empty());
}

}  // namespace

TQPrefController::TQPrefController(PreferencesSurroundings surroundings)
    : _surroundings(std::move(surroundings)),
      _preferences(_surroundings.preferences),
      _window(std::make_unique<PreferencesWindow>(_surroundings.layout)) {
    windowDidLoad();
}

TQPrefController::~TQPrefController() = default;

void TQPrefController::windowDidLoad() {
    const int version = _surroundings.toolkitVersion;
    _window->showStatusItem->setVisible(version >= firstWithStatusItems);
    _window->showStatusLabel->setVisible(version >= firstWithStatusItems);
    _window->darkTheme->setVisible(version >= firstWithDarkTheme);
    _window->ContinuouslyApply->setEnabled(_surroundings.canBeDisturbed);
    _window->continuouslyApplyNote->setVisible(!_surroundings.canBeDisturbed);
    _window->showNightLight(_surroundings.suspendsNightLight);
    bindSettings();
    followTheme();
    _themeSubscription = _preferences.subscribe([this] { followTheme(); });
    connectActions();
    update();
}

void TQPrefController::bindSettings() {
    const auto bind = [this](QCheckBox* box, std::string_view key) {
        _bindings.push_back(std::make_unique<SettingBinding>(*box, _preferences, key));
    };
    bind(_window->darkTheme, settingsKey::darkTheme);
    bind(_window->allowRemote, settingsKey::allowRemote);
    bind(_window->keepNightLight, settingsKey::keepNightLight);
    bind(_window->channelStrip, settingsKey::channelStrip);
    bind(_window->showTargetHints, settingsKey::showsTargetHints);
}

void TQPrefController::followTheme() {
    const Appearance appearance{.isDark = _preferences.boolForKey(settingsKey::darkTheme),
                                .allowsVibrancy = false,
                                .options = _options};
    if (effectiveAppearance(*_window) != appearance) {
        setAppearance(*_window, appearance);
    }
}

void TQPrefController::setAccessibilityOptions(const AccessibilityOptions& options) {
    _options = options;
    followTheme();
}

void TQPrefController::connectActions() {
    const auto onClick = [this](QCheckBox* box,
                                void (TQPrefController::*action)(const QCheckBox&)) {
        QObject::connect(box, &QCheckBox::clicked, box,
                         [this, box, action] { (this->*action)(*box); });
    };
    onClick(_window->rememberWhenQuitting, &TQPrefController::hitRememberWhenQuitting);
    onClick(_window->ContinuouslyApply, &TQPrefController::hitContinuouslyApply);
    onClick(_window->advancedPanel, &TQPrefController::hitAdvancedPanel);
    onClick(_window->showAtLaunch, &TQPrefController::hitShowAtLaunch);
    onClick(_window->useHotKey, &TQPrefController::hitUseHotKey);
    onClick(_window->panelHotKey, &TQPrefController::hitPanelHotKey);
    onClick(_window->openAtLoginCheckbox, &TQPrefController::openAtLoginDidChange);
    PreferencesWindow& window = *_window;
    window.affectAllScreens->setAction([&] { hitAffectAllScreens(*window.affectAllScreens); });
    window.toggleApply->setAction([&] { hitToggleApply(*window.toggleApply); });
    window.showStatusItem->setAction([&] { hitShowStatusItem(*window.showStatusItem); });
    const auto onRecording = [this](DDHotKeyTextField* field,
                                    void (TQPrefController::*action)(const DDHotKeyTextField&)) {
        QObject::connect(field, &DDHotKeyTextField::hotKeyChanged, field,
                         [this, field, action] { (this->*action)(*field); });
        QObject::connect(field, &DDHotKeyTextField::recordingBegan, field, [this] {
            if (_recordingBegan) {
                _recordingBegan();
            }
        });
        QObject::connect(field, &DDHotKeyTextField::recordingEnded, field, [this] {
            if (_recordingEnded) {
                _recordingEnded();
            }
        });
    };
    onRecording(window.hotKeyField, &TQPrefController::hotKeyDidChange);
    onRecording(window.panelHotKeyField, &TQPrefController::panelHotKeyDidChange);
    QObject::connect(window.changeHotKeys, &QPushButton::clicked, window.changeHotKeys,
                     [this] { _surroundings.changeHotKeys(); });
    window.setShouldClose([this] { return windowShouldClose(); });
}

void TQPrefController::update() {
    const auto check = [this](QCheckBox* box, std::string_view key) {
        box->setChecked(_preferences.boolForKey(key));
    };
    check(_window->rememberWhenQuitting, settingsKey::rememberSettings);
    check(_window->ContinuouslyApply, settingsKey::continuouslyApply);
    check(_window->advancedPanel, settingsKey::advancedPanel);
    check(_window->showAtLaunch, settingsKey::showAtLaunch);
    check(_window->useHotKey, settingsKey::useHotKey);
    check(_window->panelHotKey, settingsKey::panelHotKey);
    const auto select = [](RadioMatrix* matrix, std::int64_t tag) {
        if (std::in_range<int>(tag)) {
            matrix->selectCellWithTag(static_cast<int>(tag));
        }
    };
    select(_window->affectAllScreens,
           _preferences.boolForKey(settingsKey::affectAllScreens) ? 1 : 0);
    select(_window->toggleApply, _preferences.boolForKey(settingsKey::toggleApply) ? 1 : 0);
    select(_window->showStatusItem, _preferences.integerForKey(settingsKey::showStatusItem));
    _window->hotKeyField->setHotKey(storedHotKey(_preferences, HotKeyRole::ToggleCorrection));
    _window->panelHotKeyField->setHotKey(storedHotKey(_preferences, HotKeyRole::ShowPanel));
    _window->openAtLoginCheckbox->setChecked(_surroundings.loginItem.isEnabled());
    showTriggers();
}

void TQPrefController::showWindow() {
    // Set the contents' geometry explicitly: on showing the window again Qt would request the
    // position of its frame, which is taken as that of the contents, and the window would drift.
    if (!_window->isVisible() && std::exchange(_hasBeenShown, true)) {
        _window->setGeometry(_window->geometry());
    }
    bringToFront(*_window, _surroundings.windowSystem);
    _window->clearFirstResponder();
}

bool TQPrefController::windowShouldClose() {
    _window->clearFirstResponder();
    return true;
}

QRect TQPrefController::frame() const {
    return _window->geometry();
}

void TQPrefController::setFrameOrigin(const QPoint& origin) {
    _window->setGeometry({origin, _window->size()});
}

void TQPrefController::setClosed(std::function<void()> closed) {
    _window->setClosed(std::move(closed));
}

void TQPrefController::showHotKeyAssignment(const HotKeyAssignment& assignment) {
    _assignment = assignment;
    _window->showHotKeyChooser(assignment.chooser);
    showTriggers();
}

void TQPrefController::showTriggers() {
    const auto show = [this](QLabel& label, HotKeyRole role, bool isUsed) {
        const auto found = _assignment.triggers.find(role);
        const bool isGiven = found != _assignment.triggers.end() && !found->second.empty();
        label.setText(!isUsed   ? QString()
                      : isGiven ? QString::fromStdString(found->second)
                                : QCoreApplication::translate("Preferences", "No keys given yet"));
    };
    show(*_window->hotKeyTrigger, HotKeyRole::ToggleCorrection, _window->useHotKey->isChecked());
    show(*_window->panelHotKeyTrigger, HotKeyRole::ShowPanel, _window->panelHotKey->isChecked());
    _window->changeHotKeys->setEnabled(_window->useHotKey->isChecked() ||
                                       _window->panelHotKey->isChecked());
}

void TQPrefController::showHotKeyProblem(HotKeyRole role, const std::string& sentence) {
    const bool isToggle = role == HotKeyRole::ToggleCorrection;
    showProblem(isToggle ? *_window->hotKeyProblem : *_window->panelHotKeyProblem, sentence);
}

void TQPrefController::showRemoteProblem(const std::string& sentence) {
    showProblem(*_window->remoteProblem, sentence);
}

void TQPrefController::setRecordingHooks(std::function<void()> began, std::function<void()> ended) {
    _recordingBegan = std::move(began);
    _recordingEnded = std::move(ended);
}

// A boolean has eight bits; the rest of the value is ignored.
void TQPrefController::setBool(std::string_view key, int value) {
    _preferences.setValue(key, static_cast<std::int8_t>(value) != 0);
}

void TQPrefController::hitRememberWhenQuitting(const QCheckBox& sender) {
    setBool(settingsKey::rememberSettings, sender.isChecked());
}

void TQPrefController::hitContinuouslyApply(const QCheckBox& sender) {
    setBool(settingsKey::continuouslyApply, sender.isChecked());
}

void TQPrefController::hitAdvancedPanel(const QCheckBox& sender) {
    setBool(settingsKey::advancedPanel, sender.isChecked());
}

void TQPrefController::hitShowAtLaunch(const QCheckBox& sender) {
    setBool(settingsKey::showAtLaunch, sender.isChecked());
}

void TQPrefController::hitAffectAllScreens(const RadioMatrix& sender) {
    setBool(settingsKey::affectAllScreens, sender.selectedTag());
}

void TQPrefController::hitToggleApply(const RadioMatrix& sender) {
    setBool(settingsKey::toggleApply, sender.selectedTag());
}

void TQPrefController::hitShowStatusItem(const RadioMatrix& sender) {
    setBool(settingsKey::showStatusItem, sender.selectedTag());
}

void TQPrefController::hitUseHotKey(const QCheckBox& sender) {
    setBool(settingsKey::useHotKey, sender.isChecked());
    moveFocus(sender.isChecked(), *_window->hotKeyField);
}

void TQPrefController::hitPanelHotKey(const QCheckBox& sender) {
    setBool(settingsKey::panelHotKey, sender.isChecked());
    moveFocus(sender.isChecked(), *_window->panelHotKeyField);
}

// Enabling a hot key that is not set yet starts recording it at once.
void TQPrefController::moveFocus(bool isOn, DDHotKeyTextField& field) {
    showTriggers();
    if (_assignment.chooser != HotKeyChooser::Program) {
        return;
    }
    if (!isOn) {
        _window->clearFirstResponder();
    } else if (!field.hotKey()) {
        field.setFocus(Qt::OtherFocusReason);
    }
}

void TQPrefController::hotKeyDidChange(const DDHotKeyTextField& sender) {
    storeHotKey(_preferences, HotKeyRole::ToggleCorrection, sender.hotKey().get());
    _window->clearFirstResponder();
}

void TQPrefController::panelHotKeyDidChange(const DDHotKeyTextField& sender) {
    storeHotKey(_preferences, HotKeyRole::ShowPanel, sender.hotKey().get());
    _window->clearFirstResponder();
}

void TQPrefController::openAtLoginDidChange(const QCheckBox& sender) {
    const bool isEnabled = sender.checkState() == Qt::Checked;
    setLoginItemEnabled(isEnabled);
    // The actual state, even if it could not be changed.
    _window->openAtLoginCheckbox->setChecked(_surroundings.loginItem.isEnabled());
    if (isEnabled) {
        adviseOnPlace();
    }
}

void TQPrefController::setLoginItemEnabled(bool isEnabled) {
    const auto set = _surroundings.loginItem.setEnabled(isEnabled);
    if (!set && _surroundings.log) {
        std::string line = "Failed to set login item enabled to ";
        line += isEnabled ? '1' : '0';
        _surroundings.log(line);
        _surroundings.log(set.error().sentence);
    }
}

void TQPrefController::adviseOnPlace() {
    if (isInstalledReliably(_surroundings.program, _surroundings.home)) {
        return;
    }
    (void)_surroundings.alerts.runModal(
        {.message = TONQUIL_TEXT("",
                                 "Launch at login is more reliable when the Tonquil is located in "
                                 "the Applications folder."),
         .informativeText = TONQUIL_TEXT("",
                                         "If the app is not launching at next login, try moving "
                                         "it to the Applications folder."),
         .buttons = {TONQUIL_TEXT("", "OK")}});
}

}  // namespace tonquil
