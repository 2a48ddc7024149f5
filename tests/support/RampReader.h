// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "tests/support/Ramp.h"
#include "tests/support/XcbOutputs.h"

namespace tonquil {

/// Reads and writes the hardware ramp of an output over a connection of its own, anew in every
/// call, and shares no code with what it checks.
class RampReader {
 public:
    /// Connects to `display`, for example ":7".
    [[nodiscard]] static Result<RampReader> connect(const std::string& display);

    /// The ramp of the lit output named `connector`, for example "DUMMY1".
    [[nodiscard]] Result<Ramp> read(const std::string& connector) const;
    /// Sets the ramp as a foreign program would; the sizes must be those that `read` gave.
    [[nodiscard]] Result<void> write(const std::string& connector, const Ramp& ramp) const;
    /// The lit outputs, in the server's order.
    [[nodiscard]] Result<std::vector<OutputState>> litOutputs() const;

 private:
    explicit RampReader(XcbOutputs outputs);
    [[nodiscard]] Result<OutputState> litOutput(const std::string& connector) const;

    XcbOutputs _outputs;
};

}  // namespace tonquil
