// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Tracks the user's desktop-wide appearance settings through the desktop portal.
///
/// Without a portal or a session bus, nothing is ever called or logged.
class DesktopAppearance {
 public:
    struct Settings {
        /// Outlines and text should stand out more.
        bool increaseContrast = false;
        /// No decorative animations.
        bool reduceMotion = false;

        bool operator==(const Settings&) const = default;
    };
    using Handler = std::function<void(const Settings&)>;

    explicit DesktopAppearance(RunLoop& runLoop) : _bus(runLoop) {}

    /// Queries the session bus without waiting, and calls the handler on the main thread whenever
    /// the settings differ from the last ones, initially the defaults of `Settings`. An empty
    /// address stands for no bus. Call once.
    void start(const std::string& address, Handler handler);

 private:
    void ask();
    void take(const std::string& group, const std::string& key, const BusArguments::Value& value);
    void tell();

    Handler _handler;
    Settings _told;
    Settings _settings;
    BusConnection _bus;
};

}  // namespace tonquil
