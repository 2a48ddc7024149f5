// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace tonquil {

/// The status icon: a transfer curve, filled below while the correction is on. A light curve with a
/// dark rim, legible on light and dark bars.
[[nodiscard]] QIcon statusIcon(bool isActive);

}  // namespace tonquil
