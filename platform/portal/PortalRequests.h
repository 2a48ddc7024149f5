// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Requests to the desktop's portal. A method call only begins one; its answer is a signal, which
/// may come before the call returns and, where the user is asked, minutes after it.
class PortalRequests {
 public:
    static constexpr const char* service = "org.freedesktop.portal.Desktop";
    static constexpr const char* object = "/org/freedesktop/portal/desktop";

    /// One of them is called once.
    struct Outcome {
        /// With a dictionary of results, or with null if the user or the desktop refused.
        std::function<void(BusArguments* results)> answered;
        /// The portal could not even begin the request.
        std::function<void()> failed;
    };

    /// The connection must outlive this.
    explicit PortalRequests(BusConnection& bus) : _bus(bus) {}

    /// Call once the connection is open, before the first request.
    void watchAnswers();
    /// A new name for a request or a session, which is part of its object's path.
    [[nodiscard]] std::string newToken() { return "tonquil" + std::to_string(++_lastToken); }
    /// Calls a method whose last argument is `options`, to which this adds the request's token.
    void ask(const std::string& interface, const std::string& method,
             std::vector<BusArgument> arguments, BusDictionary options, Outcome outcome);
    /// Forgets all requests: there will be no answers.
    void clear() { _waiting.clear(); }

 private:
    /// The path of a request's object.
    [[nodiscard]] std::string pathOf(const std::string& token) const;
    /// What is waited for at this path, if anything, and no longer.
    [[nodiscard]] std::optional<Outcome> take(const std::string& path);

    BusConnection& _bus;
    std::uint32_t _lastToken = 0;
    /// By the paths of the requests.
    std::map<std::string, Outcome> _waiting;
};

}  // namespace tonquil
