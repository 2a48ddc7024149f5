// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/dbus/BusConnection.h"

namespace tonquil {

/// Follows what the person asked of the whole desktop's appearance, through the desktop portal.
///
/// Where there is no portal, or no session bus, nothing is ever called and nothing is logged.
/// Needs a QCoreApplication and its event loop on the main thread.
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

    DesktopAppearance();

    /// Asks without waiting, and calls on the main thread whenever the settings differ from those
    /// told last, which at the beginning are the defaults of `Settings`. To be called once.
    void start(Handler handler);

 private:
    void ask();
    void take(const QString& group, const QString& key, const QVariant& value);
    void tell();

    Handler _handler;
    Settings _told;
    Settings _settings;
    BusConnection _bus;
};

}  // namespace tonquil
