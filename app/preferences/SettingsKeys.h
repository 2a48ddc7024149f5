// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "values/PropertyValue.h"

namespace tonquil {

/// The keys of the preferences store: what each means, its type, and its default where it has one.
/// A key without a default starts as false, 0 or absent.
namespace settingsKey {

/// Boolean, true: the panel shows its sliders for the single channels.
inline constexpr std::string_view advancedPanel = "AdvancedPanel";
/// Boolean, true: the panel is dark.
inline constexpr std::string_view darkTheme = "DarkTheme";
/// Boolean, true: the curves are put on the displays again and again.
inline constexpr std::string_view continuouslyApply = "ContinuouslyApply";
/// Number, 3: seconds between two such re-applications.
inline constexpr std::string_view continuouslyApplyInterval = "ContinuouslyApplyInterval";
/// Boolean, true: the program shows its panel when it starts.
inline constexpr std::string_view showAtLaunch = "ShowAtLaunch";
/// Boolean, true: the correction is on when the program has started; otherwise it is off.
inline constexpr std::string_view rememberSettings = "RememberSettings";
/// Boolean, true: the correction is on now.
inline constexpr std::string_view applyCorrection = "ApplyCorrection";
/// Boolean, false: an edit goes to every display instead of the one under the panel.
inline constexpr std::string_view affectAllScreens = "AffectAllScreens";
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
/// integer. Code and modifiers 0 together are none.
inline constexpr std::string_view useHotKey = "UseHotKey";
inline constexpr std::string_view useHotKeyCode = "UseHotKeyCode";
inline constexpr std::string_view useHotKeyModifiers = "UseHotKeyModifiers";
/// The same for the one that shows the panel under the pointer.
inline constexpr std::string_view panelHotKey = "PanelHotKey";
inline constexpr std::string_view panelHotKeyCode = "PanelHotKeyCode";
inline constexpr std::string_view panelHotKeyModifiers = "PanelHotKeyModifiers";
/// Integer: the format chosen last for a settings file; 0 one display, 1 several.
inline constexpr std::string_view saveFormat = "SaveFormat";
/// Array of strings: the settings files opened or saved last, newest first.
inline constexpr std::string_view recentFiles = "RecentFiles";
/// Boolean: the warning of a program that fights for the same tables was shown.
inline constexpr std::string_view conflictWarned = "KVFluxWarned";
/// Boolean: the panel shows the strip with the slider of the focused channel.
inline constexpr std::string_view channelStrip = "ChannelStrip";
/// Boolean, true: windows of targets say below the pattern what to look for.
inline constexpr std::string_view showsTargetHints = "ShowTargetHints";
/// Text "X Y WIDTH HEIGHT": where the panel was, in pixels of the desktop from its upper left.
inline constexpr std::string_view controlWindowFrame = "Window Frame ControlWindow";
/// The same of the floating window of targets.
inline constexpr std::string_view targetsFrame = "Window Frame Targets";
/// Integer: the target that it shows; 0 colour, 1 grayscale.
inline constexpr std::string_view targetKind = "TargetKind";
/// The frame of the preferences window, as above.
inline constexpr std::string_view preferencesFrame = "Window Frame Preferences";

}  // namespace settingsKey

/// The defaults above, as a dictionary.
[[nodiscard]] PropertyValue registeredDefaults();

}  // namespace tonquil
