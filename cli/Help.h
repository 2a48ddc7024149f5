// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tonquil {

extern const std::string_view helpText;

}  // namespace tonquil
