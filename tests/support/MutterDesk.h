// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/dbus/BusConnection.h"
#include "platform/ramp/HardwareRamp.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// GNOME's services for displays, which mutter_desk.py plays, on a private bus.
class MutterDesk {
 public:
    /// One generation lends calibration sessions, the other takes anybody's ramps.
    explicit MutterDesk(bool lendsSessions) {
        EXPECT_TRUE(_daemon->waitForOutput("\n", longest)) << _daemon->standardError();
        _script = BackgroundProcess::start({.command = {"/usr/bin/python3", MUTTER_DESK, address(),
                                                        lendsSessions ? "sessions" : "ramps"}})
                      .value();
        EXPECT_TRUE(_script->waitForOutput("ready", longest)) << _script->standardError();
        bool isOpen = false;
        _bus.open(address(), {.opened = [&] { isOpen = true; }});
        EXPECT_TRUE(_bus.waitUntil([&] { return isOpen; }, longest));
    }

    [[nodiscard]] std::string address() const {
        return "unix:path=" + (_folder.path() / "bus").native();
    }
    /// Ends the bus, or with SIGSTOP makes it hang.
    void sendToBus(int signal) { _daemon->send(signal); }
    /// Runs a line of Python on the script's `desk`; returns its value as text.
    std::string tell(const std::string& line) {  // NOLINT(modernize-use-nodiscard)
        std::optional<std::string> value;
        _bus.ask(
            {"org.gnome.Mutter.DisplayConfig", "/test", "org.example.Test", "Do"}, {line},
            [&](BusArguments& answer) { value = answer.text(); },
            [&](const std::string& reason) { ADD_FAILURE() << line << ": " << reason; });
        EXPECT_TRUE(_bus.waitUntil([&] { return value.has_value(); }, longest)) << line;
        return value.value_or("");
    }
    /// The ramp that was set on a monitor; of size 0 where it is the compositor's own.
    [[nodiscard]] HardwareRamp ramp(const std::string& connector) {
        constexpr std::size_t digits = 4;
        const std::string text = tell("desk.monitors['" + connector + "'].ramp.hex()");
        HardwareRamp ramp(static_cast<std::uint32_t>(text.size() / digits / 3));
        for (std::size_t i = 0; i < ramp.entries().size(); ++i) {
            ramp.entries()[i] = static_cast<std::uint16_t>(
                std::stoul(text.substr(i * digits, digits), nullptr, 16));
        }
        return ramp;
    }

 private:
    static constexpr std::chrono::seconds longest{20};

    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _daemon =
        BackgroundProcess::start({.command = {"dbus-daemon", "--session", "--print-address",
                                              "--nofork", "--address=" + address()}})
            .value();
    std::unique_ptr<BackgroundProcess> _script;
    BusConnection _bus{nullptr};
};

}  // namespace tonquil
