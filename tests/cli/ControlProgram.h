// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/support/ProcessRunner.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// Runs the real tonquilctl. An empty display leaves DISPLAY unset.
[[nodiscard]] ProcessResult tonquilctl(const std::string& display,
                                       const std::vector<std::string>& arguments);

/// The request behind it, for programs that are started in the background.
[[nodiscard]] ProcessRequest tonquilctlRequest(const std::string& display,
                                               const std::vector<std::string>& arguments);

/// A file with these contents that lives as long as the test program.
[[nodiscard]] std::string fileWith(const std::string& contents);

/// The same with a property list.
[[nodiscard]] std::string propertyListFile(const PropertyValue& value);

}  // namespace tonquil
