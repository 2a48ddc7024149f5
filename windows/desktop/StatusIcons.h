// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace tonquil {

/// The status item's picture: a transfer curve, filled below while the correction is on. A light
/// curve with a dark rim, which reads on light bars and on dark ones.
[[nodiscard]] QIcon statusIcon(bool isActive);

}  // namespace tonquil
