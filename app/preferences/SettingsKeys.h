// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "values/PropertyValue.h"

namespace tonquil {

/// The keys of the preferences store: type, default if any, and meaning. A key without a default
/// starts as false, 0 or absent.
namespace settingsKey {

/// Boolean, true: the panel shows sliders for each channel.
inline constexpr std::string_view advancedPanel = "AdvancedPanel";
/// Boolean, true: the panel is dark.
inline constexpr std::string_view darkTheme = "DarkTheme";
/// Boolean, true: the curves are re-applied periodically.
inline constexpr std::string_view continuouslyApply = "ContinuouslyApply";
/// Number, 3: seconds between re-applications.
inline constexpr std::string_view continuouslyApplyInterval = "ContinuouslyApplyInterval";
/// Boolean, true: the panel is shown at startup.
inline constexpr std::string_view showAtLaunch = "ShowAtLaunch";
/// Boolean, true: the correction is on after startup; otherwise it is off.
inline constexpr std::string_view rememberSettings = "RememberSettings";
/// Boolean, true: the correction is on now.
inline constexpr std::string_view applyCorrection = "ApplyCorrection";
/// Boolean, false: edits go to every display instead of only the one under the panel.
inline constexpr std::string_view affectAllScreens = "AffectAllScreens";
/// Boolean, true: where corrections take the desktop's night light off the displays, they have its
/// colour in them.
inline constexpr std::string_view keepNightLight = "KeepNightLight";
/// Integer, 1: the panel's tab; 0 black, 1 middle, 2 white.
inline constexpr std::string_view selectedTab = "SelectedTab";
/// Dictionary, empty: the curves by reference ID of their display.
inline constexpr std::string_view screens = "Screens";
/// Boolean: starting the program while it runs toggles the correction instead of showing the panel.
inline constexpr std::string_view toggleApply = "ToggleApply";
/// Integer used as boolean: exactly 1 shows the status item and no task-bar entry.
inline constexpr std::string_view showStatusItem = "ShowStatusItem";
/// Boolean: companions on the local network may read and set the curves.
inline constexpr std::string_view allowRemote = "AllowRemote";
/// The hot key that toggles the correction: boolean, integer of which the low 16 bits count, and
/// integer. Code and modifiers both 0 mean none.
inline constexpr std::string_view useHotKey = "UseHotKey";
inline constexpr std::string_view useHotKeyCode = "UseHotKeyCode";
inline constexpr std::string_view useHotKeyModifiers = "UseHotKeyModifiers";
/// The same for the hot key that shows the panel under the pointer.
inline constexpr std::string_view panelHotKey = "PanelHotKey";
inline constexpr std::string_view panelHotKeyCode = "PanelHotKeyCode";
inline constexpr std::string_view panelHotKeyModifiers = "PanelHotKeyModifiers";
/// Integer: the last chosen format of a saved file, as numbered by `SettingsFormat`.
inline constexpr std::string_view saveFormat = "SaveFormat";
/// Array of strings: the most recently opened or saved settings files, newest first.
inline constexpr std::string_view recentFiles = "RecentFiles";
/// Boolean: the warning of a rival program was shown.
inline constexpr std::string_view conflictWarned = "KVFluxWarned";
/// Boolean: a curve was edited in the panel, which from then on does without the hint of the first
/// start.
inline constexpr std::string_view hasEdited = "HasEdited";
/// Boolean: the panel shows the strip with the slider of the focused channel.
inline constexpr std::string_view channelStrip = "ChannelStrip";
/// Boolean, true: target windows explain below the pattern what to look for.
inline constexpr std::string_view showsTargetHints = "ShowTargetHints";
/// Text "X Y WIDTH HEIGHT": the panel's last position, in desktop pixels from the upper left.
inline constexpr std::string_view controlWindowFrame = "Window Frame ControlWindow";
/// The same for the floating targets window.
inline constexpr std::string_view targetsFrame = "Window Frame Targets";
/// Integer: the target shown in that window; 0 colour, 1 grayscale.
inline constexpr std::string_view targetKind = "TargetKind";
/// The frame of the preferences window, as above.
inline constexpr std::string_view preferencesFrame = "Window Frame Preferences";

}  // namespace settingsKey

/// The defaults above, as a dictionary.
[[nodiscard]] PropertyValue registeredDefaults();

}  // namespace tonquil
