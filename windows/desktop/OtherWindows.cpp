// SPDX-License-Identifier: MIT
#include "windows/desktop/OtherWindows.h"

#include <QColor>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>
#include <QWindow>
#include <map>

#include "app/preferences/SettingsKeys.h"
#include "app/preferences/WindowFrame.h"
#include "windows/about/AboutWindow.h"
#include "windows/about/KVAboutBoxBackground.h"
#include "windows/panel/DevicePixels.h"
#include "windows/panel/PanelIcons.h"
#include "windows/preferences/PreferencesWindow.h"

namespace tonquil {

namespace {

// Addresses are translatable texts: a language may have pages of its own.
QUrl addressOf(std::string_view key) {
    static const std::map<std::string_view, const char*> ownAddresses{
        {"TQWebSite", TONQUIL_WEB_SITE}, {"TQBoardWebSite", TONQUIL_BOARD_WEB_SITE}};
    const QString keyText = QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
    const QString text = QCoreApplication::translate("WebSites", keyText.toUtf8().constData());
    return {text == keyText ? QString::fromUtf8(ownAddresses.at(key)) : text};
}

}  // namespace

OtherWindows::OtherWindows(Surroundings surroundings) : _(std::move(surroundings)) {}

OtherWindows::~OtherWindows() = default;

void OtherWindows::setAccessibilityOptions(const AccessibilityOptions& options) {
    _options = options;
    if (_prefs) {
        _prefs->setAccessibilityOptions(options);
    }
}

void OtherWindows::showHotKeyAssignment(HotKeyAssignment assignment) {
    _hotKeyAssignment = std::move(assignment);
    if (_prefs) {
        _prefs->showHotKeyAssignment(_hotKeyAssignment);
    }
}

void OtherWindows::setAboutBackground(double red, double green, double blue) {
    KVAboutBoxBackground::setBackgroundColor(QColor::fromRgbF(
        static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue)));
}

void OtherWindows::makePreferences() {
    _prefs = std::make_unique<TQPrefController>(_.preferences);
    _prefs->setAccessibilityOptions(_options);
    _prefs->setRecordingHooks([this] { _.suspendHotKeys(true); },
                              [this] { _.suspendHotKeys(false); });
    _prefs->setClosed([this] { saveFrames(); });
    _prefs->window().setWindowIcon(programIcon());
    _prefs->showHotKeyAssignment(_hotKeyAssignment);
    _prefs->showHotKeyProblem(HotKeyRole::ToggleCorrection, _toggleProblem);
    _prefs->showHotKeyProblem(HotKeyRole::ShowPanel, _panelProblem);
    _prefs->showRemoteProblem(_remoteProblem);
    const auto frame =
        windowFrameFrom(_.preferences.preferences.stringForKey(settingsKey::preferencesFrame));
    if (frame && !_.service.displaysWithPoint(frame->centre(), 1).empty()) {
        _prefs->setFrameOrigin(pointsFrom(*frame).topLeft());
    }
    _.windowMade(_prefs->window());
}

void OtherWindows::openPreferences() {
    if (!_prefs) {
        makePreferences();
    }
    _prefs->showWindow();
}

bool OtherWindows::isPreferencesWindowShown() const {
    return _prefs && _prefs->window().isVisible();
}

void OtherWindows::openAboutBox() {
    if (!_about) {
        _about = std::make_unique<KVAboutBoxController>(_.bundle, _.preferences.windowSystem);
        _.windowMade(_about->window());
        keepAbovePanel(_about->window());
    }
    _about->showWindow();
}

// Both must have a native window for that.
void OtherWindows::keepAbovePanel(QWidget& window) const {
    window.winId();
    _.panel.winId();
    window.windowHandle()->setTransientParent(_.panel.windowHandle());
}

bool OtherWindows::hasAddress(std::string_view key) {
    return !addressOf(key).isEmpty();
}

void OtherWindows::openAddress(std::string_view key) {
    const QUrl address = addressOf(key);
    if (address.isEmpty() || !QDesktopServices::openUrl(address)) {
        std::string line = "No browser could be shown the page ";
        _.preferences.log(line.append(address.toString().toStdString()).append("."));
    }
}

void OtherWindows::showHotKeyProblem(HotKeyRole role, const std::string& sentence) {
    const bool isToggle = role == HotKeyRole::ToggleCorrection;
    (isToggle ? _toggleProblem : _panelProblem) = sentence;
    if (_prefs) {
        _prefs->showHotKeyProblem(role, sentence);
    }
}

void OtherWindows::showRemoteProblem(const std::string& sentence) {
    _remoteProblem = sentence;
    if (_prefs) {
        _prefs->showRemoteProblem(sentence);
    }
}

void OtherWindows::saveFrames() {
    if (_prefs && !areWindowsPlacedByDesktop()) {
        _.preferences.preferences.setValue(settingsKey::preferencesFrame,
                                           textFromWindowFrame(devicePixelsFrom(_prefs->frame())));
    }
}

}  // namespace tonquil
