// SPDX-License-Identifier: MIT
#include "tests/support/MutterDesk.h"

#include <gtest/gtest.h>

namespace tonquil {

MutterDesk::MutterDesk(bool lendsSessions)
    : _daemon(BackgroundProcess::start({.command = {"dbus-daemon", "--session", "--print-address",
                                                    "--nofork", "--address=" + address()}})
                  .value()) {
    EXPECT_TRUE(_daemon->waitForOutput("\n", std::chrono::seconds(20)));
    _script = BackgroundProcess::start({.command = {"/usr/bin/python3", MUTTER_DESK, address(),
                                                    lendsSessions ? "sessions" : "ramps"}})
                  .value();
    EXPECT_TRUE(_script->waitForOutput("ready", std::chrono::seconds(20)))
        << _script->standardError();
    sd_bus* bus = nullptr;
    sd_bus_new(&bus);
    _bus.reset(bus);
    sd_bus_set_address(bus, address().c_str());
    sd_bus_set_bus_client(bus, 1);
    EXPECT_GE(sd_bus_start(bus), 0);
}

std::string MutterDesk::address() const {
    return "unix:path=" + (_folder.path() / "bus").native();
}

std::string MutterDesk::tell(const std::string& line) {
    sd_bus_error error{};
    sd_bus_message* answer = nullptr;
    const char* text = "";
    const int result =
        sd_bus_call_method(_bus.get(), "org.gnome.Mutter.DisplayConfig", "/test",
                           "org.example.Test", "Do", &error, &answer, "s", line.c_str());
    EXPECT_GE(result, 0) << line << ": " << error.message;
    if (result >= 0) {
        sd_bus_message_read(answer, "s", &text);
    }
    const std::string value = text;
    sd_bus_error_free(&error);
    sd_bus_message_unref(answer);
    return value;
}

HardwareRamp MutterDesk::ramp(const std::string& connector) {
    constexpr std::size_t digits = 4;
    const std::string text = tell("desk.ramp('" + connector + "')");
    HardwareRamp ramp(static_cast<std::uint32_t>(text.size() / digits / 3));
    for (std::size_t i = 0; i < ramp.entries().size(); ++i) {
        // Two bytes, the lower one first.
        const unsigned swapped =
            static_cast<unsigned>(std::stoul(text.substr(i * digits, digits), nullptr, 16));
        ramp.entries()[i] = static_cast<std::uint16_t>((swapped << 8U) | (swapped >> 8U));
    }
    return ramp;
}

}  // namespace tonquil
