// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "remote/LocalHost.h"

namespace tonquil {

/// By what companions tell computers apart: the hardware address as twelve lower-case hexadecimal
/// digits.
///
/// A program makes one for its whole life. The answer to the first question stays, also when it is
/// empty because the address could not be read.
class MachineGuid {
 public:
    [[nodiscard]] const std::string& text(const LocalHost& host);

 private:
    std::optional<std::string> _text;
};

}  // namespace tonquil
