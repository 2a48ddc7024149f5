// SPDX-License-Identifier: MIT
#pragma once

#include "app/curves/CurveRecovery.h"
#include "app/desktop/InstalledPrograms.h"
#include "app/preferences/PreferencesStore.h"
#include "screens/ScreenRegistry.h"

namespace tonquil {

/// Applies the stored curves to the displays, before there is a controller or anything else that
/// could cause a delay. Changes nothing but the displays.
///
/// Does nothing if the program starts with the correction off, or if it first has to ask whether to
/// run beside a rival program.
void applyStoredCurves(ScreenRegistry& registry, DisplayService& service,
                       PreferencesStore& preferences, CurveRecovery& recovery,
                       const InstalledPrograms& programs);

}  // namespace tonquil
