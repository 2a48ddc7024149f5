// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>

#include "model/KVGammaCurve.h"

namespace tonquil {

/// Reads a curve dictionary of any kind, as preferences and settings files hold them: a table if it
/// has a whole one, otherwise an extended curve. Never null.
[[nodiscard]] std::shared_ptr<KVGammaCurve> curveWithDictionary(const nlohmann::json& dictionary);

}  // namespace tonquil
