// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Follows what the person asked of the whole desktop's appearance, through the desktop portal.
///
/// Where there is no portal, or no session bus, nothing is ever called and nothing is logged.
class DesktopAppearance {
 public:
    struct Settings {
        /// Outlines and text are to stand out more.
        bool increaseContrast = false;
        /// Nothing is to move for show.
        bool reduceMotion = false;

        bool operator==(const Settings&) const = default;
    };
    using Handler = std::function<void(const Settings&)>;

    explicit DesktopAppearance(RunLoop& runLoop) : _bus(runLoop) {}

    /// Asks on the session bus without waiting, and calls on the main thread whenever the settings
    /// differ from the last ones, which at first are the defaults of `Settings`. An empty address
    /// is no bus. To be called once.
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
