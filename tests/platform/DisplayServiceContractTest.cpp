// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "platform/kde/KdeDisplayService.h"
#include "platform/mutter/MutterDisplayService.h"
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "platform/wayland/WlrDisplayService.h"
#include "platform/x11/displays/X11DisplayService.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/GammaCompositor.h"
#include "tests/support/IccBuilder.h"
#include "tests/support/KdeCompositor.h"
#include "tests/support/MutterDesk.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

/// Two displays, seen from outside the service under test.
class ServiceBench {
 public:
    virtual ~ServiceBench() = default;

    /// A service as another program would open it, alongside others.
    [[nodiscard]] virtual std::unique_ptr<DisplayService> openService(Log log) = 0;
    /// The hardware ramp of the first (0) or second (1) display.
    [[nodiscard]] virtual HardwareRamp hardwareRamp(int display) = 0;
    virtual void unplugSecond() = 0;
    virtual void plugSecond() = 0;
    // Where the desktop has such things.
    virtual void setForeignRamp(int /*display*/, const HardwareRamp& /*ramp*/) {}
    /// Publishes a colour profile whose calibration is this ramp.
    virtual void publishProfile(int /*display*/, const HardwareRamp& /*ramp*/) {}
};

Ramp plain(const HardwareRamp& ramp) {
    const auto channel = [&](std::size_t index) {
        const auto entries = ramp.channel(index);
        return std::vector<std::uint16_t>(entries.begin(), entries.end());
    };
    return {.red = channel(0), .green = channel(1), .blue = channel(2)};
}

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

void write(const std::filesystem::path& file, const std::vector<std::uint8_t>& bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << std::string(bytes.begin(), bytes.end());
}

/// A private X server, read through the independent reader.
class X11Bench : public ServiceBench {
 public:
    X11Bench() {
        mustSucceed(_server->setEdid("DUMMY0", buildEdid({.serial = 1})));
        mustSucceed(_server->setEdid("DUMMY1", buildEdid({.serial = 2})));
        X11Bench::plugSecond();
    }

    std::unique_ptr<DisplayService> openService(Log log) override {
        return X11DisplayService::open(_server->display().c_str(), nullptr, std::move(log)).value();
    }
    HardwareRamp hardwareRamp(int display) override {
        const Ramp ramp = _reader.read(connectors.at(display)).value();
        HardwareRamp hardware(static_cast<std::uint32_t>(ramp.red.size()));
        std::ranges::copy(ramp.red, hardware.channel(0).begin());
        std::ranges::copy(ramp.green, hardware.channel(1).begin());
        std::ranges::copy(ramp.blue, hardware.channel(2).begin());
        return hardware;
    }
    void setForeignRamp(int display, const HardwareRamp& ramp) override {
        mustSucceed(_reader.write(connectors.at(display), plain(ramp)));
    }
    void publishProfile(int display, const HardwareRamp& ramp) override {
        mustSucceed(_server->setRootProperty(display == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_1",
                                             buildIccWithTable(plain(ramp))));
    }
    void unplugSecond() override { mustSucceed(_server->unplug("DUMMY1")); }
    void plugSecond() override { mustSucceed(_server->plug("DUMMY1", "1280x1024")); }

 private:
    const std::vector<std::string> connectors{"DUMMY0", "DUMMY1"};
    std::unique_ptr<XServer> _server = XServer::start().value();
    RampReader _reader = RampReader::connect(_server->display()).value();
};

class WlrBench : public ServiceBench {
 public:
    WlrBench() {
        for (const std::uint32_t serial : {1U, 2U}) {
            write(_connectors.path() / ("card0-DP-" + std::to_string(serial)) / "edid",
                  buildEdid({.serial = serial}));
        }
        WlrBench::plugSecond();
        _compositor.plug("DP-1", 0);
    }

    std::unique_ptr<DisplayService> openService(Log log) override {
        return WlrDisplayService::open(_compositor.socket().c_str(),
                                       {.log = std::move(log), .connectors = _connectors.path()})
            .value();
    }
    HardwareRamp hardwareRamp(int display) override {
        return _compositor.ramp("DP-" + std::to_string(display + 1));
    }
    void unplugSecond() override { _compositor.unplug("DP-2"); }
    void plugSecond() override { _compositor.plug("DP-2", 1920); }

 private:
    ScratchFolder _connectors;
    GammaCompositor _compositor;
};

class KdeBench : public ServiceBench {
 public:
    KdeBench() {
        KdeBench::plugSecond();
        _compositor.plug("DP-1", 0, 1);
    }

    std::unique_ptr<DisplayService> openService(Log log) override {
        return KdeDisplayService::open(_compositor.socket().c_str(),
                                       {.state = _folder.path() / "state", .log = std::move(log)})
            .value();
    }
    HardwareRamp hardwareRamp(int display) override {
        return _compositor.ramp("DP-" + std::to_string(display + 1));
    }
    void publishProfile(int display, const HardwareRamp& ramp) override {
        const std::string path = _folder.path() / ("their " + std::to_string(++_profiles));
        write(path, buildIccWithTable(plain(ramp)));
        _compositor.choose("DP-" + std::to_string(display + 1), {path, 1});
    }
    void unplugSecond() override { _compositor.unplug("DP-2"); }
    void plugSecond() override { _compositor.plug("DP-2", 1920, 2); }

 private:
    ScratchFolder _folder;
    int _profiles = 0;
    KdeCompositor _compositor;
};

/// The compositor names its connectors by halves.
template <bool lendsSessions>
class MutterBench : public ServiceBench {
 public:
    MutterBench() {
        write(_folder.path() / "card1-DVI-D-1/edid", buildEdid({.serial = 1}));
        write(_folder.path() / "card1-HDMI-A-1/edid", buildEdid({.serial = 2}));
        MutterBench::plugSecond();
        _desk.tell("desk.plug('DVI-1', 0)");
    }

    std::unique_ptr<DisplayService> openService(Log log) override {
        return MutterDisplayService::open(std::nullopt, {.log = std::move(log),
                                                         .sessionBus = _desk.address(),
                                                         .systemBus = _desk.address(),
                                                         .connectors = _folder.path()})
            .value();
    }
    HardwareRamp hardwareRamp(int display) override {
        const HardwareRamp ramp = _desk.ramp(connectors.at(display));
        return ramp.size() == 0 ? _calibrations.at(display) : ramp;
    }
    void publishProfile(int display, const HardwareRamp& ramp) override {
        const auto file = _folder.path() / connectors.at(display);
        write(file, buildIccWithTable(plain(ramp)));
        _desk.tell("desk.set_profile('" + std::string(connectors.at(display)) + "', '" +
                   file.native() + "')");
        _calibrations.at(display) = ramp;
    }
    void unplugSecond() override { _desk.tell("desk.unplug('HDMI-1')"); }
    void plugSecond() override { _desk.tell("desk.plug('HDMI-1', 1920)"); }

 private:
    const std::vector<const char*> connectors{"DVI-1", "HDMI-1"};
    /// What the compositor itself puts on the displays.
    std::vector<HardwareRamp> _calibrations{2, HardwareRamp::straight(256)};
    ScratchFolder _folder;
    MutterDesk _desk{lendsSessions};
};

/// What every display service owes.
class DisplayServiceContract : public testing::TestWithParam<std::unique_ptr<ServiceBench> (*)()> {
 protected:
    [[nodiscard]] std::unique_ptr<DisplayService> open() {
        return bench->openService([this](std::string_view line) { log.emplace_back(line); });
    }
    [[nodiscard]] DisplayID display(int index) {
        return service->onlineDisplays(25).at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] GammaTable read(int index) {
        GammaTable table;
        EXPECT_EQ(service->getTransferTable(display(index), table), 256U);
        return table;
    }

    std::vector<std::string> log;
    std::unique_ptr<ServiceBench> bench = GetParam()();
    std::unique_ptr<DisplayService> service = open();
};

/// What those owe besides whose desktop publishes colour profiles.
class PublishedProfilesContract : public DisplayServiceContract {};

/// And those where a correction outlives its program, and is read back.
class LastingTablesContract : public DisplayServiceContract {};

/// And those whose displays other programs can set at any time.
class SharedTablesContract : public DisplayServiceContract {};

/// A table of whole 16-bit entries, so that it comes back as it was.
GammaTable tableOf(int seed) {
    GammaTable table;
    for (std::size_t i = 0; i < table.levels.size(); ++i) {
        table.levels[i] =
            static_cast<float>((i * 97 + static_cast<std::size_t>(seed) * 1013) % 65'536) /
            65'535.0F;
    }
    return table;
}

HardwareRamp rampOf(const GammaTable& table) {
    HardwareRamp ramp(256);
    ramp.setTable(table);
    return ramp;
}

TEST_P(DisplayServiceContract, ReadsSystemTableEvenAfterRestart) {
    const GammaTable system = read(0);
    const HardwareRamp other = bench->hardwareRamp(1);
    GammaTable hardware;
    service->restoreSystemCalibration();
    EXPECT_TRUE(haveSameBits(read(0), system)) << "restoring what was never corrected";
    for (int round = 0; round < 3; ++round) {
        service->setTransferTable(display(0), tableOf(round));
        EXPECT_EQ(bench->hardwareRamp(0), rampOf(tableOf(round)));
        EXPECT_EQ(bench->hardwareRamp(1), other) << "only the display that was meant";
        if (service->description(display(0)).isReadable) {
            EXPECT_EQ(service->getHardwareTable(display(0), hardware), 256U);
            EXPECT_EQ(rampOf(hardware), rampOf(tableOf(round)));
        }
        EXPECT_TRUE(haveSameBits(read(0), system));
        service.reset();
        service = open();
        EXPECT_TRUE(haveSameBits(read(0), system)) << round;
    }
    service->restoreSystemCalibration();
    EXPECT_EQ(bench->hardwareRamp(0), rampOf(system));
}

TEST_P(SharedTablesContract, TakesAForeignRampForTheSystemsOnlyWhileItHoldsNoCorrection) {
    const GammaTable system = read(0);
    for (int round = 0; round < 2; ++round) {
        service->setTransferTable(display(0), tableOf(1));
        EXPECT_TRUE(haveSameBits(read(0), system)) << "nor as found while it was replaced";
        bench->setForeignRamp(0, rampOf(tableOf(2)));
        EXPECT_TRUE(haveSameBits(read(0), system)) << "it replaced the correction";
    }
    service->restoreSystemCalibration();
    EXPECT_EQ(bench->hardwareRamp(0), rampOf(system));
    bench->setForeignRamp(0, rampOf(tableOf(2)));
    EXPECT_EQ(rampOf(read(0)), rampOf(tableOf(2))) << "off";
    bench->setForeignRamp(0, rampOf(tableOf(3)));
    service->setTransferTable(display(0), tableOf(1));
    EXPECT_EQ(rampOf(read(0)), rampOf(tableOf(3))) << "off, and found while it was replaced";
    bench->setForeignRamp(0, rampOf(tableOf(4)));
    service = open();
    service->setTransferTable(display(0), tableOf(1));
    open()->restoreSystemCalibration(std::vector{display(0)});
    EXPECT_EQ(bench->hardwareRamp(0), rampOf(tableOf(4))) << "found at a start";
}

TEST_P(LastingTablesContract, RecognisesACorrectionHoweverManyOthersSetSince) {
    const GammaTable system = read(0);
    const auto other = open();
    for (const int count : {1, 1, 300, 1}) {
        for (int round = 0; round < count; ++round) {
            other->setTransferTable(display(0), tableOf(2 + round));
        }
        EXPECT_TRUE(haveSameBits(read(0), system));
        service->setTransferTable(display(0), tableOf(1));
        GammaTable base;
        EXPECT_EQ(open()->getTransferTable(display(0), base), 256U);
        EXPECT_TRUE(haveSameBits(base, system)) << "after " << count;
    }
}

TEST_P(PublishedProfilesContract, TheProfilesCalibrationIsTheSystemsWhereThereIsOne) {
    service->setTransferTable(display(0), tableOf(1));
    service->setTransferTable(display(1), tableOf(1));
    for (const int seed : {3, 4}) {
        const HardwareRamp calibration = rampOf(tableOf(seed));
        bench->publishProfile(1, calibration);
        EXPECT_EQ(rampOf(read(1)), calibration) << "at once";
        service->restoreSystemCalibration(std::vector{display(1)});
        EXPECT_EQ(bench->hardwareRamp(1), calibration);
        EXPECT_EQ(bench->hardwareRamp(0), rampOf(tableOf(1))) << "only the display that was meant";
    }
}

TEST_P(DisplayServiceContract, IgnoresMissingDisplayAndLogsOnce) {
    const DisplayID second = display(1);
    const HardwareRamp first = bench->hardwareRamp(0);
    bench->unplugSecond();
    EXPECT_EQ(service->onlineDisplays(25).size(), 1U);
    GammaTable table;
    for (int call = 0; call < 3; ++call) {
        service->setTransferTable(second, tableOf(1));
        EXPECT_EQ(service->getTransferTable(second, table), 0U);
    }
    DisplayBatch inVain(*service);
    service->restoreSystemCalibration(std::vector{second});
    EXPECT_FALSE(inVain.finish());
    EXPECT_TRUE(service->bounds(second).isEmpty());
    EXPECT_EQ(service->identity(second), DisplayIdentity{});
    EXPECT_EQ(log.size(), 1U);
    EXPECT_EQ(bench->hardwareRamp(0), first);
    bench->plugSecond();
    EXPECT_EQ(service->identity(display(1)).serialNumber, 2U);
    DisplayBatch batch(*service);
    service->setTransferTable(display(1), tableOf(4));
    EXPECT_TRUE(batch.finish());
    EXPECT_EQ(bench->hardwareRamp(1), rampOf(tableOf(4)));
}

TEST_P(DisplayServiceContract, TreatsDisplayZeroAsMain) {
    EXPECT_EQ(service->mainDisplay(), display(0));
    EXPECT_EQ(service->bounds(0), service->bounds(display(0)));
    EXPECT_EQ(service->identity(0).serialNumber, 1U);
    EXPECT_EQ(service->onlineDisplays(1).size(), 1U);
    EXPECT_EQ(service->displaysWithPoint(service->bounds(display(1)).centre(), 9),
              std::vector{display(1)});
    EXPECT_TRUE(service->displaysWithPoint({-5, -5}, 9).empty());
}

TEST_P(SharedTablesContract, AFormulaIsReadBackFromTheSystemsTable) {
    const TransferFormula formula{.red = {0, 1, 1.5F}, .green = {0, 1, 1.5F}, .blue = {0, 1, 1.5F}};
    service->setTransferFormula(display(1), formula);
    const HardwareRamp gamma = bench->hardwareRamp(1);
    // 65535 * (100 / 255) ^ 1.5
    EXPECT_EQ(gamma.channel(2)[100], 16094);
    bench->setForeignRamp(0, gamma);
    EXPECT_NEAR(service->getTransferFormula(display(0)).green.exponent, 1.5F, 1e-3F);
}

template <typename Bench>
std::unique_ptr<ServiceBench> make() {
    return std::make_unique<Bench>();
}
constexpr auto nameOf = [](const auto& each) {
    return std::vector{"Simulated", "X11", "Kde", "MutterCalibration", "Mutter", "Wlr"}.at(
        each.index);
};
INSTANTIATE_TEST_SUITE_P(Services, DisplayServiceContract,
                         testing::Values(make<SimulatedBench>, make<X11Bench>, make<KdeBench>,
                                         make<MutterBench<true>>, make<MutterBench<false>>,
                                         make<WlrBench>),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Services, PublishedProfilesContract,
                         testing::Values(make<SimulatedBench>, make<X11Bench>, make<KdeBench>,
                                         make<MutterBench<true>>, make<MutterBench<false>>),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Services, LastingTablesContract,
                         testing::Values(make<SimulatedBench>, make<X11Bench>, make<KdeBench>),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Services, SharedTablesContract,
                         testing::Values(make<SimulatedBench>, make<X11Bench>), nameOf);

}  // namespace
}  // namespace tonquil
