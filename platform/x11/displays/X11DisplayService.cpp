// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11DisplayService.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

/// Whether the other list contains an equal entry.
bool isIn(const std::vector<X11Display>& displays, const X11Display& display) {
    return std::find(displays.begin(), displays.end(), display) != displays.end();
}

/// Whether the display's CRTC was configured differently in between.
bool wasOtherwise(const X11Reconfiguration::CrtcStates& passed, const X11Display& display) {
    return std::any_of(passed.begin(), passed.end(), [&](const auto& state) {
        const Rectangle bounds{static_cast<double>(state.x), static_cast<double>(state.y),
                               static_cast<double>(state.width), static_cast<double>(state.height)};
        return state.crtc == display.crtc && bounds != display.bounds;
    });
}

}  // namespace

Result<std::unique_ptr<X11DisplayService>> X11DisplayService::open(const char* display,
                                                                   RunLoop* runLoop, Log log) {
    auto connection = X11Connection::open(display);
    if (!connection) {
        return tl::unexpected(std::move(connection.error()));
    }
    return std::unique_ptr<X11DisplayService>(
        new X11DisplayService(std::move(*connection), runLoop, std::move(log)));
}

X11DisplayService::X11DisplayService(std::unique_ptr<X11Connection> connection, RunLoop* runLoop,
                                     Log log)
    : _connection(std::move(connection)),
      _runLoop(runLoop),
      _log(std::move(log)),
      _ramps(*_connection),
      _profiles(*_connection) {}

X11DisplayService::~X11DisplayService() = default;

const std::vector<X11Display>& X11DisplayService::layout() {
    if (!_layout) {
        readLayout();
    }
    return *_layout;
}

void X11DisplayService::readLayout() {
    const auto previous = std::exchange(_layout, readX11Layout(*_connection));
    for (X11Display& display : *_layout) {
        display.id = idFor(display);
    }
    _isLayoutOfBatch = true;
    _areRampsOfBatch = false;
    _areProfilesOfBatch = false;
    // A correction left behind would apply to whichever display uses this CRTC next.
    for (const xcb_randr_crtc_t crtc :
         crtcsLeft(previous.value_or(std::vector<X11Display>{}), *_layout)) {
        if (_ramps.isLoaded(crtc)) {
            _ramps.release(crtc);
        }
    }
    if (!_isInBatch) {
        static_cast<void>(_ramps.finish());
    }
}

DisplayID X11DisplayService::idFor(const X11Display& display) {
    // The server's own resource IDs have the three highest bits clear.
    constexpr DisplayID firstBeyondOutputs = 0x80000000U;
    const auto known = std::find_if(_known.begin(), _known.end(), [&](const KnownDisplay& each) {
        return each.output == display.output && each.identity == display.identity;
    });
    if (known != _known.end()) {
        return known->id;
    }
    const bool isFirstThere =
        std::none_of(_known.begin(), _known.end(),
                     [&](const KnownDisplay& each) { return each.output == display.output; });
    const DisplayID id =
        isFirstThere ? display.output : firstBeyondOutputs + static_cast<DisplayID>(_known.size());
    _known.push_back({.output = display.output, .identity = display.identity, .id = id});
    return id;
}

const X11Display* X11DisplayService::find(DisplayID display) {
    const auto& displays = layout();
    const auto found = std::find_if(displays.begin(), displays.end(), [=](const auto& each) {
        return display == 0 || each.id == display;
    });
    return found == displays.end() ? nullptr : &*found;
}

bool X11DisplayService::isXwayland(const X11Display& display) const {
    // Releases before 23.1 lack the extension that says so, but name their outputs XWAYLAND0, 1, ….
    return _connection->isXwayland() || display.connector.starts_with("XWAYLAND");
}

const X11Display* X11DisplayService::correctable(DisplayID display) {
    const X11Display* found = find(display);
    if (found == nullptr) {
        report(display, "Display " + std::to_string(display) + " is gone.");
        return nullptr;
    }
    if (!_ramps.isLoaded(found->crtc)) {
        lookAtRamp(*found);
    }
    if (const std::string reason = obstacle(*found); !reason.empty()) {
        report(display, found->connector + ": " + reason);
        return nullptr;
    }
    return found;
}

std::string X11DisplayService::obstacle(const X11Display& display) const {
    if (isXwayland(display)) {
        return TONQUIL_TEXT("Problem",
                            "This X server only draws into a Wayland desktop: setting its gamma "
                            "ramps changes nothing.");
    }
    return _ramps.size(display.crtc) == 0
               ? TONQUIL_TEXT("Problem", "This display has no gamma ramp.")
               : "";
}

std::vector<DisplayID> X11DisplayService::onlineDisplays(std::size_t most) {
    if (!_isInBatch || !_isLayoutOfBatch) {
        readLayout();
    }
    std::vector<DisplayID> online;
    for (const X11Display& display : *_layout) {
        if (online.size() < most) {
            online.push_back(display.id);
        }
    }
    if (_reconfiguration) {
        _reconfiguration->takeQueuedEvents();
    }
    return online;
}

DisplayID X11DisplayService::mainDisplay() {
    const X11Display* display = find(0);
    return display == nullptr ? 0 : display->id;
}

DisplayIdentity X11DisplayService::identity(DisplayID display) {
    const X11Display* found = find(display);
    return found == nullptr ? DisplayIdentity{} : found->identity;
}

DisplayDescription X11DisplayService::description(DisplayID display) {
    const X11Display* found = find(display);
    if (found == nullptr) {
        return {};
    }
    lookAtRamp(*found);
    return {.connector = found->connector,
            .productName = found->productName,
            .rampSize = _ramps.size(found->crtc),
            .obstacle = obstacle(*found),
            .primaries = found->primaries};
}

Rectangle X11DisplayService::bounds(DisplayID display) {
    const X11Display* found = find(display);
    return found == nullptr ? Rectangle{} : found->bounds;
}

void X11DisplayService::lookAtRamp(const X11Display& display) {
    if (!_isInBatch) {
        _ramps.load({display.crtc});
    } else if (!_areRampsOfBatch) {
        std::vector<xcb_randr_crtc_t> crtcs;
        for (const X11Display& each : layout()) {
            crtcs.push_back(each.crtc);
        }
        _ramps.load(crtcs);
        _areRampsOfBatch = true;
    }
    if (_reconfiguration) {
        _reconfiguration->takeQueuedEvents();
    }
}

void X11DisplayService::setTransferTable(DisplayID display, const GammaTable& table) {
    const DisplayBatch batch(*this);
    const X11Display* found = correctable(display);
    if (found == nullptr) {
        _allReached = false;
        return;
    }
    _ramps.setCorrection(found->crtc, table);
}

std::uint32_t X11DisplayService::getTransferTable(DisplayID display, GammaTable& table) {
    const X11Display* found = correctable(display);
    if (found == nullptr) {
        return 0;
    }
    const auto ramp = systemCalibration(*found);
    return ramp ? ramp->getTable(table) : 0;
}

std::uint32_t X11DisplayService::getHardwareTable(DisplayID display, GammaTable& table) {
    const X11Display* found = correctable(display);
    if (found == nullptr) {
        return 0;
    }
    lookAtRamp(*found);
    const HardwareRamp* ramp = _ramps.present(found->crtc);
    return ramp == nullptr ? 0 : ramp->getTable(table);
}

std::optional<HardwareRamp> X11DisplayService::systemCalibration(const X11Display& display) {
    lookAtRamp(display);
    if (!_isInBatch || !_areProfilesOfBatch) {
        _profiles.load(layout().size());
        _areProfilesOfBatch = true;
    }
    const auto index = static_cast<std::size_t>(&display - layout().data());
    auto calibration = _profiles.calibration(index, _ramps.size(display.crtc));
    return calibration ? calibration : _ramps.uncorrected(display.crtc);
}

void X11DisplayService::restoreSystemCalibration(std::span<const DisplayID> displays) {
    const DisplayBatch batch(*this);
    for (const DisplayID display : displays) {
        const X11Display* found = correctable(display);
        if (found == nullptr) {
            _allReached = false;
        } else if (const auto ramp = systemCalibration(*found)) {
            _ramps.setSystemRamp(found->crtc, *ramp);
        }
    }
}

void X11DisplayService::warpPointer(const Point& point) {
    // The protocol has 16 bits for a coordinate; a not-a-number becomes 0.
    const auto coordinate = [](double value) {
        return static_cast<std::int16_t>(std::isnan(value) ? 0
                                                           : std::clamp(value, -32768.0, 32767.0));
    };
    // Waited for, so that a query over another connection finds the pointer there.
    const XcbPointer<xcb_generic_error_t> ignored(xcb_request_check(
        _connection->get(),
        xcb_warp_pointer_checked(_connection->get(), XCB_NONE, _connection->root(), 0, 0, 0, 0,
                                 coordinate(point.x), coordinate(point.y))));
}

void X11DisplayService::beginBatch() {
    _isInBatch = true;
    _isLayoutOfBatch = false;
    _areRampsOfBatch = false;
    _areProfilesOfBatch = false;
    _allReached = true;
}

bool X11DisplayService::endBatch() {
    _isInBatch = false;
    for (const xcb_randr_crtc_t crtc : _ramps.finish()) {
        _allReached = false;
        const auto refused =
            std::find_if(layout().begin(), layout().end(),
                         [=](const X11Display& display) { return display.crtc == crtc; });
        if (refused != layout().end()) {
            report(refused->id, refused->connector + " did not take its gamma ramp.");
        }
    }
    if (_connection->isLost()) {
        _allReached = false;
        report(0, "The X server has gone.");
    }
    if (_reconfiguration) {
        _reconfiguration->takeQueuedEvents();
    }
    return _allReached;
}

void X11DisplayService::report(DisplayID display, const std::string& text) {
    if (_reported.insert(display).second && _log) {
        _log(text);
    }
}

std::unique_ptr<DisplayService::Subscription> X11DisplayService::registerReconfigurationCallback(
    ReconfigurationCallback callback) {
    auto subscription = _callbacks.add(std::move(callback));
    if (!_reconfiguration && _runLoop != nullptr) {
        // Events are selected before the state is read, so that no change is missed in between.
        // Changes since the displays were listed are reported like any other.
        _reconfiguration = std::make_unique<X11Reconfiguration>(
            *_connection, *_runLoop, _log,
            [this](const X11Reconfiguration::CrtcStates& passed) { displaysChanged(passed); },
            [this] {
                if (_lost) {
                    _lost();
                }
            });
        const bool isListed = _layout.has_value();
        _announced = layout();
        readLayout();
        if (isListed && _announced != layout()) {
            _reconfiguration->waitForQuiet();
        } else {
            _announced = layout();
        }
        _reconfiguration->takeQueuedEvents();
    }
    return subscription;
}

void X11DisplayService::displaysChanged(const X11Reconfiguration::CrtcStates& passed) {
    readLayout();
    const auto before = std::exchange(_announced, layout());
    std::vector<DisplayID> affected;
    for (const X11Display& display : before) {
        if (!isIn(_announced, display)) {
            affected.push_back(display.id);
        }
    }
    for (const X11Display& display : _announced) {
        const bool isChanged = wasOtherwise(passed, display) || !isIn(before, display);
        if (isChanged &&
            std::find(affected.begin(), affected.end(), display.id) == affected.end()) {
            affected.push_back(display.id);
        }
    }
    _reported.clear();
    for (const ReconfigurationFlags flags : {beginConfiguration, endConfiguration}) {
        for (const DisplayID display : affected) {
            _callbacks.call(display, flags);
        }
    }
    _reconfiguration->takeQueuedEvents();
}

}  // namespace tonquil
