// SPDX-License-Identifier: MIT
#include "platform/mutter/MutterDisplayService.h"

#include <algorithm>
#include <utility>

#include "foundation/TranslatableText.h"
#include "platform/mutter/CalibrationSessions.h"
#include "platform/mutter/CrtcGamma.h"

namespace tonquil {

namespace {

using namespace std::chrono_literals;

/// How long a start waits for the first ramps, and for the night light's colour in them.
constexpr std::chrono::milliseconds longestFirstRamps = 100ms;
constexpr std::chrono::milliseconds longestNightLight = 20ms;

}  // namespace

Result<std::unique_ptr<MutterDisplayService>> MutterDisplayService::open(
    std::optional<Generation> wanted, Surroundings with) {
    std::unique_ptr<MutterDisplayService> service(new MutterDisplayService(std::move(with)));
    if (auto connected = service->connect(wanted); !connected) {
        return tl::unexpected(std::move(connected.error()));
    }
    service->_listing.begin(service->layout());
    service->_announcement.reset();
    if (RunLoop* const loop = service->_with.runLoop) {
        service->_started = loop->callOnce(0ms, [&started = *service] { started.hasStarted(); });
    }
    return service;
}

bool MutterDisplayService::isOffered(const std::string& sessionBus,
                                     std::chrono::milliseconds longestGreeting) {
    MutterBus bus(nullptr);
    return bus.open(sessionBus, longestGreeting, [](const std::string&) {}) &&
           (bus.lendsSessions() || bus.hasMonitors());
}

MutterDisplayService::MutterDisplayService(Surroundings with)
    : ListedDisplayService(with.log),
      _with(std::move(with)),
      _bus(_with.runLoop),
      _profiles({.runLoop = _with.runLoop,
                 .systemBus = _with.systemBus,
                 .changed = [this] { calibrationsChanged(); }}),
      _nightLight(_bus.connection(), [this] { sendAgain(); }) {}

// Ramps that stay on the hardware must have been sent.
MutterDisplayService::~MutterDisplayService() {
    // Nobody is told any more.
    _isLost = true;
    if (_gamma && _generation == Generation::Crtc) {
        static_cast<void>(wait([this] { return _gamma->isIdle(); }, longestFirstRamps));
    }
}

Result<void> MutterDisplayService::connect(std::optional<Generation> wanted) {
    if (!_bus.open(_with.sessionBus, _with.longestGreeting,
                   [this](const std::string& sentence) { connectionLost(sentence); })) {
        return problem(TONQUIL_TEXT("Problem", "The session bus does not answer."));
    }
    if (_bus.lendsSessions() && wanted != Generation::Crtc) {
        _generation = Generation::Calibration;
    } else if (_bus.hasMonitors() && wanted != Generation::Calibration) {
        _generation = Generation::Crtc;
    } else {
        return problem(TONQUIL_TEXT(
            "Problem", "This Wayland desktop does not let programs correct its displays."));
    }
    useGeneration();
    if (!refresh()) {
        return problem(TONQUIL_TEXT("Problem", "The Wayland compositor does not answer."));
    }
    static_cast<void>(wait([this] { return _nightLight.isKnown(); }, longestNightLight));
    return {};
}

bool MutterDisplayService::wait(const std::function<bool()>& isDone,
                                std::chrono::milliseconds limit) {
    return _bus.connection().waitUntil(isDone, limit);
}

void MutterDisplayService::useGeneration() {
    const MutterGamma::Host host{
        .bus = _bus.connection(),
        .runLoop = _with.runLoop,
        .ramp = [this](const std::string& connector,
                       std::uint32_t size) { return rampFor(connector, size); },
        .changed = [this] { gammaChanged(); }};
    if (_generation == Generation::Calibration) {
        _gamma = std::make_unique<CalibrationSessions>(host);
    } else {
        _gamma = std::make_unique<CrtcGamma>(host);
    }
    _nightLight.start();
    _bus.watchMonitors([this] { monitorsChanged(); });
}

bool MutterDisplayService::refresh() {
    _isLayoutKnown = false;
    askForLayout();
    static_cast<void>(
        wait([this] { return _isLayoutKnown && _gamma->isIdle(); }, _with.longestAnswer));
    if (_with.runLoop == nullptr) {
        _profiles.ask(_displays.connectors());
    }
    return _isLayoutKnown;
}

void MutterDisplayService::monitorsChanged() {
    _haveMonitorsChanged = true;
    if (_with.runLoop != nullptr && !_quiet && !_isLost) {
        _quiet = _with.runLoop->callOnce(quietTime, [this] {
            _quiet.reset();
            askForLayout();
        });
    }
}

void MutterDisplayService::askForLayout() {
    _retry.reset();
    const bool haveChanged = std::exchange(_haveMonitorsChanged, false);
    _bus.askForMonitors(
        [this, haveChanged](MutterLayout layout) {
            _isLayoutKnown = true;
            if (haveChanged || layout != _layout) {
                takeLayout(std::move(layout));
            }
        },
        [this, haveChanged] {
            _haveMonitorsChanged = _haveMonitorsChanged || haveChanged;
            // Apart from the quiet time, so that a change that comes sooner does not wait for this.
            if (_with.runLoop != nullptr && !_isLost) {
                _retry =
                    _with.runLoop->callOnce(MutterGamma::retryInterval, [this] { askForLayout(); });
            }
        });
}

void MutterDisplayService::takeLayout(MutterLayout layout) {
    _layout = std::move(layout);
    for (const std::string& gone : _displays.replace(_layout, _listing, _with.connectors)) {
        _gamma->release(gone);
    }
    _gamma->setMonitors(_displays.connectors());
    if (_with.runLoop != nullptr) {
        _profiles.ask(_displays.connectors());
    }
    layoutMayHaveChanged();
}

std::vector<ListedDisplay> MutterDisplayService::layout() {
    std::vector<ListedDisplay> displays;
    for (const MutterDisplay& display : _displays.all()) {
        const auto state = _gamma->state(display.listed.connector);
        displays.push_back(display.listed);
        displays.back().rampSize = state.size;
        displays.back().obstacle = state.obstacle;
        displays.back().isTaken = state.isTaken;
    }
    return displays;
}

HardwareRamp MutterDisplayService::rampFor(const std::string& connector, std::uint32_t size) const {
    const GammaTable* const table = _displays.tableOn(connector);
    HardwareRamp ramp =
        table != nullptr ? HardwareRamp(size) : _profiles.calibration(connector, size);
    if (table != nullptr) {
        ramp.setTable(*table);
    }
    // Where the desktop's night light still works, it will not put back at once what we overwrote.
    if (suspendsNightLight() ? _isNightLightKept : table == nullptr) {
        _nightLight.tint(ramp);
    }
    return ramp;
}

void MutterDisplayService::catchUp() {
    if (_with.runLoop == nullptr) {
        static_cast<void>(refresh());
    }
}

void MutterDisplayService::setTransferTable(DisplayID display, const GammaTable& table) {
    const DisplayBatch batch(*this);
    MutterDisplay* const found = _displays.find(display);
    if (found == nullptr) {
        _listing.reportGone(display);
        _allReached = false;
        return;
    }
    // Also where it cannot be set now: it will be when that changes.
    found->table = table;
    found->isGivenBack = false;
    found->isUnsent = true;
}

std::uint32_t MutterDisplayService::getTransferTable(DisplayID display, GammaTable& table) {
    const MutterDisplay* const found = _displays.find(display);
    if (found == nullptr) {
        _listing.reportGone(display);
        return 0;
    }
    const std::string& connector = found->listed.connector;
    const auto state = _gamma->state(connector);
    if (!state.hasRamp) {
        _listing.report(display, connector + ": " + state.obstacle);
        return 0;
    }
    // The size is known only once the display was corrected, and hardly ever below a table's.
    const std::uint32_t size = state.size == 0 ? GammaTable::capacity : state.size;
    return _profiles.calibration(connector, std::min(size, GammaTable::capacity)).getTable(table);
}

void MutterDisplayService::restoreSystemCalibration(std::span<const DisplayID> displays) {
    const DisplayBatch batch(*this);
    for (const DisplayID display : displays) {
        MutterDisplay* const found = _displays.find(display);
        if (found == nullptr) {
            _listing.reportGone(display);
            _allReached = false;
            continue;
        }
        found->table.reset();
        found->isGivenBack = true;
        found->isUnsent = true;
    }
}

void MutterDisplayService::beginBatch() {
    _allReached = true;
}

bool MutterDisplayService::endBatch() {
    std::vector<DisplayID> sent;
    for (MutterDisplay& display : _displays.all()) {
        if (std::exchange(display.isUnsent, false)) {
            sent.push_back(display.listed.id);
            if (display.table) {
                _gamma->hold(display.listed.connector);
            } else {
                _gamma->release(display.listed.connector);
            }
        }
    }
    if (_isStarting && !sent.empty()) {
        // Without a run loop a refusal that came later would go unnoticed.
        static_cast<void>(wait([this] { return _gamma->isIdle(); },
                               _with.runLoop == nullptr ? _with.longestAnswer : longestFirstRamps));
        if (!_isObserved) {
            _listing.begin(layout());
        }
    }
    if (_isLost) {
        return false;
    }
    for (const DisplayID display : sent) {
        _allReached = isReached(display) && _allReached;
    }
    return _allReached;
}

// With a run loop only what is known already counts: the rest is still on its way.
bool MutterDisplayService::isReached(DisplayID display) {
    const MutterDisplay* const found = _displays.find(display);
    if (found == nullptr) {
        return false;
    }
    const std::string& connector = found->listed.connector;
    const auto state = _gamma->state(connector);
    if (state.obstacle.empty() && (state.isReached || _with.runLoop != nullptr)) {
        return true;
    }
    if (!found->table && !state.hasRamp) {
        return true;
    }
    _listing.report(display, connector + (state.obstacle.empty() ? " did not take its gamma ramp."
                                                                 : ": " + state.obstacle));
    return false;
}

void MutterDisplayService::setNightLightKept(bool isKept) {
    if (std::exchange(_isNightLightKept, isKept) != isKept) {
        sendAgain();
    }
}

void MutterDisplayService::sendAgain() {
    for (const MutterDisplay& display : _displays.all()) {
        if (display.table && _gamma) {
            _gamma->hold(display.listed.connector);
        }
    }
}

std::unique_ptr<DisplayService::Subscription> MutterDisplayService::registerReconfigurationCallback(
    ReconfigurationCallback callback) {
    auto subscription = _listing.add(std::move(callback));
    _isObserved = true;
    // What has changed since the displays were listed is told like any other change.
    layoutMayHaveChanged();
    return subscription;
}

void MutterDisplayService::gammaChanged() {
    for (const MutterDisplay& display : _displays.all()) {
        const auto state = _gamma->state(display.listed.connector);
        if (state.obstacle.empty()) {
            _listing.forget(display.listed.id);
        } else if (display.table) {
            _listing.report(display.listed.id, display.listed.connector + ": " + state.obstacle);
        }
    }
    layoutMayHaveChanged();
}

void MutterDisplayService::layoutMayHaveChanged() {
    if (_with.runLoop != nullptr && !_announcement && !_isLost) {
        _announcement = _with.runLoop->callOnce(0ms, [this] {
            _announcement.reset();
            _listing.announce(layout());
        });
    }
}

void MutterDisplayService::calibrationsChanged() {
    if (_with.runLoop != nullptr && !_isLost) {
        _news = _with.runLoop->callOnce(0ms, [this] {
            _news.reset();
            // A session that has ended took our ramp with it. On the hardware it stays, made of the
            // calibration that was known when the display was given back: at a start, of none.
            for (const MutterDisplay& display : _displays.all()) {
                if (display.isGivenBack && _generation == Generation::Crtc) {
                    _gamma->release(display.listed.connector);
                }
            }
            for (const ListedDisplay& display : layout()) {
                _listing.announceCalibration(display.id);
            }
        });
    }
}

void MutterDisplayService::connectionLost(const std::string& sentence) {
    if (std::exchange(_isLost, true)) {
        return;
    }
    _quiet.reset();
    _retry.reset();
    _announcement.reset();
    _news.reset();
    if (_with.lost) {
        _with.lost();
    }
    _listing.report(0, sentence);
}

}  // namespace tonquil
