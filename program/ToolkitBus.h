// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tonquil {

/// Hides the services on the session bus that do not answer from the window toolkit.
///
/// The toolkit takes its addresses from the environment, so these are changed while it starts. Our
/// own connections never block, so they still go to the original bus.
class ToolkitBus {
 public:
    /// Tries the session bus, for at most a second, and logs what the toolkit must do without.
    /// Create it before the application.
    ToolkitBus();
    ToolkitBus(const ToolkitBus&) = delete;
    ToolkitBus& operator=(const ToolkitBus&) = delete;

    /// Lets the toolkit read its addresses, then restores the session bus in the environment, for
    /// the programs that we start. Call it once, right after creating the application.
    void settle();
    /// The session bus's address; empty if the bus does not answer.
    [[nodiscard]] const std::string& sessionAddress() const { return _sessionAddress; }

 private:
    std::string _sessionAddress;
    /// The variable's value while it is hidden; nothing if it was not set.
    std::optional<std::string> _hidden;
    bool _isHidden = false;
};

}  // namespace tonquil
