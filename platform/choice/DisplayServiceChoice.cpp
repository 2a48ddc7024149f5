// SPDX-License-Identifier: MIT
#include "platform/choice/DisplayServiceChoice.h"

#include <cstdlib>
#include <string_view>
#include <utility>

#include "files/BoundedFile.h"
#include "foundation/TranslatableText.h"
#include "platform/folders/XdgFolders.h"
#include "platform/kde/KdeDisplayService.h"
#include "platform/simulated/SimulatedDeskReader.h"
#include "platform/simulated/SimulatedDisplayService.h"
#include "platform/wayland/WlrDisplayService.h"
#include "platform/x11/displays/X11DisplayService.h"

namespace tonquil {

namespace {

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
    auto service = WlrDisplayService::open(nullptr, {.runLoop = runLoop, .log = log, .lost = lost});
    if (!service) {
        return tl::unexpected(std::move(service.error()));
    }
    return std::move(*service);
}

}  // namespace

bool isWaylandServed() {
    return KdeDisplayService::isOffered() || WlrDisplayService::isOffered();
}

Result<std::unique_ptr<DisplayService>> chooseDisplayService(RunLoop* runLoop, const Log& log,
                                                             const std::function<void()>& lost) {
    const std::string_view wanted = environment("TONQUIL_DISPLAY_SERVICE");
    if (wanted == "simulated") {
        return openSimulated(log);
    }
    if (!wanted.empty() && wanted != "kde" && wanted != "wlr" && wanted != "x11") {
        return problem("TONQUIL_DISPLAY_SERVICE is \"" + std::string(wanted) +
                       "\"; it can be kde, wlr, x11 or simulated.");
    }
    if (wanted == "kde" || (wanted.empty() && !environment("WAYLAND_DISPLAY").empty())) {
        auto service = openKde(runLoop, log, lost);
        if (service || wanted == "kde") {
            return service;
        }
    }
    if (wanted == "wlr" || (wanted.empty() && !environment("WAYLAND_DISPLAY").empty())) {
        auto service = openWlr(runLoop, log, lost);
        // An X server inside a Wayland session says itself whether it can correct anything: it may
        // be a private one with displays of its own.
        if (service || wanted == "wlr" || environment("DISPLAY").empty()) {
            return service;
        }
    }
    return openX11(runLoop, log);
}

}  // namespace tonquil
