// SPDX-License-Identifier: MIT
#include "platform/choice/DisplayServiceChoice.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <utility>

#include "files/BoundedFile.h"
#include "platform/dbus/BusAddresses.h"
#include "platform/folders/XdgFolders.h"
#include "platform/kde/KdeDisplayService.h"
#include "platform/mutter/MutterDisplayService.h"
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "platform/wayland/WlrDisplayService.h"
#include "platform/x11/displays/X11DisplayService.h"

namespace tonquil {

namespace {

/// In the order in which they are tried; the last one only when asked for.
constexpr std::array<std::string_view, 6> serviceNames{
    "mutter-calibration", "kde", "wlr", "mutter", "x11", "simulated"};

std::string_view environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

struct DeskHolder {
    SimulatedDesk desk;
};

/// A simulated service together with its desk.
class OwnDeskService : private DeskHolder, public SimulatedDisplayService {
 public:
    OwnDeskService(SimulatedDesk own, Log log)
        : DeskHolder{std::move(own)}, SimulatedDisplayService(desk, std::move(log)) {}
};

Result<std::unique_ptr<DisplayService>> openSimulated(const Log& log) {
    const std::string_view file = environment("TONQUIL_SIMULATED_DESK");
    if (file.empty()) {
        return std::make_unique<OwnDeskService>(demonstrationDesk(), log);
    }
    constexpr std::size_t mostBytes = std::size_t{64} * 1024;
    const auto bytes = readBoundedFile(file, mostBytes);
    if (!bytes) {
        return tl::unexpected(bytes.error());
    }
    auto desk = readSimulatedDesk(std::string(bytes->begin(), bytes->end()));
    if (!desk) {
        return problem(std::string(file) + " holds no simulated desk. " + desk.error().sentence);
    }
    return std::make_unique<OwnDeskService>(std::move(*desk), log);
}

Result<std::unique_ptr<DisplayService>> openX11(RunLoop* runLoop, const Log& log) {
    auto service = X11DisplayService::open(nullptr, runLoop, log);
    if (!service) {
        return tl::unexpected(std::move(service.error()));
    }
    return std::move(*service);
}

Result<std::unique_ptr<DisplayService>> openKde(RunLoop* runLoop, const Log& log,
                                                const std::function<void()>& lost) {
    const auto folders = XdgFolders::fromEnvironment();
    if (!folders) {
        return tl::unexpected(folders.error());
    }
    auto service = KdeDisplayService::open(
        nullptr, {.state = folders->state(), .runLoop = runLoop, .log = log, .lost = lost});
    if (!service) {
        return tl::unexpected(std::move(service.error()));
    }
    return std::move(*service);
}

Result<std::unique_ptr<DisplayService>> openWlr(RunLoop* runLoop, const Log& log,
                                                const std::function<void()>& lost) {
    auto service = WlrDisplayService::open(
        nullptr, {.runLoop = runLoop, .log = log, .lost = lost, .systemBus = systemBusAddress()});
    if (!service) {
        return tl::unexpected(std::move(service.error()));
    }
    return std::move(*service);
}

// A bus that hangs must hold up nothing that works without it.
constexpr std::chrono::milliseconds shortGreeting{40};
constexpr std::chrono::milliseconds longGreeting{1000};

using MutterGeneration = MutterDisplayService::Generation;

Result<std::unique_ptr<DisplayService>> openMutter(std::optional<MutterGeneration> wanted,
                                                   std::chrono::milliseconds longestGreeting,
                                                   RunLoop* runLoop, const Log& log,
                                                   const std::function<void()>& lost) {
    auto service = MutterDisplayService::open(wanted, {.runLoop = runLoop,
                                                       .log = log,
                                                       .lost = lost,
                                                       .sessionBus = sessionBusAddress(),
                                                       .systemBus = systemBusAddress(),
                                                       .longestGreeting = longestGreeting});
    if (!service) {
        return tl::unexpected(std::move(service.error()));
    }
    return std::move(*service);
}

/// The first of those that this Wayland session offers. The bus is waited for at length only where
/// nothing else is there.
Result<std::unique_ptr<DisplayService>> openWayland(RunLoop* runLoop, const Log& log,
                                                    const std::function<void()>& lost) {
    auto service = openMutter(MutterGeneration::Calibration, shortGreeting, runLoop, log, lost);
    if (!service) {
        service = openKde(runLoop, log, lost);
    }
    if (!service) {
        service = openWlr(runLoop, log, lost);
    }
    if (!service) {
        const Problem refused = service.error();
        service = openMutter(std::nullopt, longGreeting, runLoop, log, lost);
        if (!service) {
            return tl::unexpected(refused);
        }
    }
    return service;
}

}  // namespace

std::string builtInDisplayServices() {
    std::string names;
    for (const std::string_view name : serviceNames) {
        names += names.empty() ? "" : ", ";
        names += name;
    }
    return names;
}

bool isWaylandServed() {
    return !environment("WAYLAND_DISPLAY").empty() &&
           (KdeDisplayService::isOffered() || WlrDisplayService::isOffered() ||
            MutterDisplayService::isOffered(sessionBusAddress(), longGreeting));
}

Result<std::unique_ptr<DisplayService>> chooseDisplayService(RunLoop* runLoop, const Log& log,
                                                             const std::function<void()>& lost) {
    const std::string_view wanted = environment("TONQUIL_DISPLAY_SERVICE");
    if (wanted == "simulated") {
        return openSimulated(log);
    }
    if (!wanted.empty() && std::ranges::count(serviceNames, wanted) == 0) {
        return problem("TONQUIL_DISPLAY_SERVICE is \"" + std::string(wanted) +
                       "\"; it can be one of " + builtInDisplayServices() + ".");
    }
    if (wanted == "mutter-calibration") {
        return openMutter(MutterGeneration::Calibration, longGreeting, runLoop, log, lost);
    }
    if (wanted == "kde") {
        return openKde(runLoop, log, lost);
    }
    if (wanted == "wlr") {
        return openWlr(runLoop, log, lost);
    }
    if (wanted == "mutter") {
        return openMutter(MutterGeneration::Crtc, longGreeting, runLoop, log, lost);
    }
    if (wanted.empty() && !environment("WAYLAND_DISPLAY").empty()) {
        auto service = openWayland(runLoop, log, lost);
        // An X server inside a Wayland session says itself whether it can correct anything: it may
        // be a private one with displays of its own.
        if (service || environment("DISPLAY").empty()) {
            return service;
        }
    }
    return openX11(runLoop, log);
}

}  // namespace tonquil
