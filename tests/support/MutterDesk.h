// SPDX-License-Identifier: MIT
#pragma once

#include <systemd/sd-bus.h>

#include <memory>
#include <string>

#include "platform/ramp/HardwareRamp.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// GNOME's services for displays, which mutter_desk.py plays, on a private bus.
class MutterDesk {
 public:
    /// One generation lends calibration sessions, the other takes anybody's ramps.
    explicit MutterDesk(bool lendsSessions);

    [[nodiscard]] std::string address() const;
    /// Ends the bus, or with SIGSTOP makes it hang.
    void sendToBus(int signal) { _daemon->send(signal); }
    /// Runs a line of Python on the script's `desk`; returns its value as text.
    std::string tell(const std::string& line);  // NOLINT(modernize-use-nodiscard)
    /// The ramp that was set on a monitor; of size 0 where it is the compositor's own.
    [[nodiscard]] HardwareRamp ramp(const std::string& connector);

 private:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };

    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _daemon;
    std::unique_ptr<BackgroundProcess> _script;
    std::unique_ptr<sd_bus, Close> _bus;
};

}  // namespace tonquil
