// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// The text for a key of a string table, in the user's language. Most keys are the English text
/// itself; the few others have their English text here.
[[nodiscard]] QString localised(std::string_view table, std::string_view key);

/// Same, with the arguments filled in (see `formattedText`).
[[nodiscard]] QString localised(std::string_view table, std::string_view key,
                                const std::vector<std::string>& arguments);

}  // namespace tonquil
