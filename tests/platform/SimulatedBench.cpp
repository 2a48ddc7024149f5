// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "tests/platform/ServiceBench.h"

namespace tonquil {

namespace {

class SimulatedBench : public ServiceBench {
 public:
    std::unique_ptr<DisplayService> openService(Log log) override {
        return std::make_unique<SimulatedDisplayService>(_desk, std::move(log));
    }
    HardwareRamp hardwareRamp(int display) override { return find(display).ramp; }
    void setForeignRamp(int display, const HardwareRamp& ramp) override {
        find(display).ramp = ramp;
    }
    void publishProfile(int display, const HardwareRamp& ramp) override {
        find(display).profileRamp = ramp;
    }
    void unplugSecond() override { _desk.unplug(2); }
    void plugSecond() override { _desk.plug(_second); }

 private:
    SimulatedDisplay& find(int display) { return *_desk.find(static_cast<DisplayID>(display + 1)); }

    SimulatedDesk _desk = readSimulatedDesk(R"([{"serial": 1}, {"serial": 2}])").value();
    SimulatedDisplay _second = *_desk.find(2);
};

}  // namespace

std::unique_ptr<ServiceBench> makeSimulatedBench() {
    return std::make_unique<SimulatedBench>();
}

}  // namespace tonquil
