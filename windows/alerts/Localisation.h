// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// The text behind a key of a string table, in the person's language. Most keys are the English
/// text themselves; the few that are not have theirs here.
[[nodiscard]] QString localised(std::string_view table, std::string_view key);

/// The same, with the arguments put in their places (see `formattedText`).
[[nodiscard]] QString localised(std::string_view table, std::string_view key,
                                const std::vector<std::string>& arguments);

}  // namespace tonquil
