// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace tonquil {

/// Keeps what does not answer on the session bus from the window toolkit.
///
/// The toolkit takes its addresses from the environment, so these are changed while it starts. Our
/// own connections wait for nobody and are made all the same, to the bus that was there before.
class ToolkitBus {
 public:
    /// Tries the session bus, for at most a second, and logs what the toolkit must do without. To
    /// be called before there is an application.
    ToolkitBus();
    ToolkitBus(const ToolkitBus&) = delete;
    ToolkitBus& operator=(const ToolkitBus&) = delete;

    /// Lets the toolkit take up its addresses, and gives the session bus back to the environment,
    /// for the programs that we start. To be called once, right after the application was made.
    void settle();
    /// The session bus; empty when it does not answer.
    [[nodiscard]] const std::string& sessionAddress() const { return _sessionAddress; }

 private:
    std::string _sessionAddress;
    /// The variable's value while it is hidden; nothing if it was not set.
    std::optional<std::string> _hidden;
    bool _isHidden = false;
};

}  // namespace tonquil
