// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/x11/X11DisplayService.h"
#include "tests/platform/ServiceBench.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {

namespace {

Ramp fromHardware(const HardwareRamp& ramp) {
    const auto channel = [&](std::size_t index) {
        const auto entries = ramp.channel(index);
        return std::vector<std::uint16_t>(entries.begin(), entries.end());
    };
    return {.red = channel(0), .green = channel(1), .blue = channel(2)};
}

/// An X server of its own, looked at through the independent reader.
class X11Bench : public ServiceBench {
 public:
    X11Bench()
        : _server(XServer::start().value()),
          _reader(RampReader::connect(_server->display()).value()) {
        mustSucceed(_server->setEdid("DUMMY0", buildEdid({.serial = 1})));
        mustSucceed(_server->setEdid("DUMMY1", buildEdid({.serial = 2})));
        X11Bench::plugSecond();
    }

    std::unique_ptr<DisplayService> openService(Log log) override {
        return X11DisplayService::open(_server->display().c_str(), nullptr, std::move(log)).value();
    }
    HardwareRamp hardwareRamp(int display) override {
        const Ramp ramp = _reader.read(connector(display)).value();
        HardwareRamp hardware(static_cast<std::uint32_t>(ramp.red.size()));
        std::ranges::copy(ramp.red, hardware.channel(0).begin());
        std::ranges::copy(ramp.green, hardware.channel(1).begin());
        std::ranges::copy(ramp.blue, hardware.channel(2).begin());
        return hardware;
    }
    void setForeignRamp(int display, const HardwareRamp& ramp) override {
        mustSucceed(_reader.write(connector(display), fromHardware(ramp)));
    }
    void publishProfile(int display, const HardwareRamp& ramp) override {
        mustSucceed(_server->setRootProperty(display == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_1",
                                             buildIccWithTable(fromHardware(ramp))));
    }
    void unplugSecond() override { mustSucceed(_server->unplug("DUMMY1")); }
    void plugSecond() override { mustSucceed(_server->plug("DUMMY1", "1280x1024")); }

 private:
    static std::string connector(int display) { return display == 0 ? "DUMMY0" : "DUMMY1"; }

    std::unique_ptr<XServer> _server;
    RampReader _reader;
};

}  // namespace

std::unique_ptr<ServiceBench> makeX11Bench() {
    return std::make_unique<X11Bench>();
}

}  // namespace tonquil
