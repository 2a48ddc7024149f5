// SPDX-License-Identifier: MIT
#pragma once

#include "app/curves/CurveRecovery.h"
#include "app/desktop/InstalledPrograms.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Puts the stored curves on the displays, before there is a controller or anything that could keep
/// one waiting. Changes nothing but the displays.
///
/// Nothing happens where the program starts without a correction, or where it first asks whether
/// it should run beside a rival.
void applyStoredCurves(ScreenRegistry& registry, DisplayService& service,
                       PreferencesStore& preferences, CurveRecovery& recovery,
                       const InstalledPrograms& programs);

}  // namespace tonquil
