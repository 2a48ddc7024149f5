// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

namespace tonquil {

/// Runs Qt's events until `condition` holds; returns false if it does not within 20 s.
[[nodiscard]] bool processUntil(const std::function<bool()>& condition);
/// Runs Qt's events for a while in which something must not happen.
void processFor(std::chrono::milliseconds time);

}  // namespace tonquil
