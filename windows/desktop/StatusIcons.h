// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace tonquil {

/// The status icon: a transfer curve, filled below while the correction is on, and dotted, as the
/// base in the plot, while it is off.
///
/// Where the symbolic icons are installed, it is named after the one that a tray should show in its
/// own colours. Drawn, it is a light curve with a dark rim, legible on light and dark bars.
[[nodiscard]] QIcon statusIcon(bool isActive);

}  // namespace tonquil
