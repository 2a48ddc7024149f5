// SPDX-License-Identifier: MIT
#include "platform/wayland/WlrDisplayService.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

using namespace std::chrono_literals;

/// A compositor that is alive answers in far less.
constexpr std::chrono::milliseconds longestAnswer = 2s;
/// How long the answer to a gamma control is waited for beyond that: some compositors say nothing
/// while another program holds the output.
constexpr std::chrono::milliseconds longestGammaAnswer = 250ms;

/// Whether the gamma control is lent to us and nothing is set by it.
bool isIdle(const WlrOutput& output) {
    return output.gamma.state() == WlrGammaControl::State::Held && !output.gamma.isInUse() &&
           !output.isRampUnsent;
}

}  // namespace

Result<std::unique_ptr<WlrDisplayService>> WlrDisplayService::open(const char* display,
                                                                   Surroundings with) {
    auto connection = WaylandConnection::open(display);
    if (!connection) {
        return tl::unexpected(std::move(connection.error()));
    }
    std::unique_ptr<WlrDisplayService> service(
        new WlrDisplayService(std::move(*connection), std::move(with)));
    // First which globals there are, then what they say.
    if (!service->_connection->waitForAnswers(longestAnswer)) {
        return problem(TONQUIL_TEXT("Problem", "The Wayland compositor does not answer."));
    }
    if (!service->_outputs->isGammaOffered()) {
        return problem(TONQUIL_TEXT(
            "Problem", "This Wayland desktop does not let programs correct its displays."));
    }
    if (service->_connection->waitForAnswers(longestAnswer)) {
        static_cast<void>(service->_connection->waitUntil(
            [&] { return service->_outputs->areAnswered(); }, longestGammaAnswer));
    }
    service->_listing.begin(service->layout());
    service->askForProfiles();
    service->_quiet.reset();
    service->retryLater();
    return service;
}

bool WlrDisplayService::isOffered() {
    const auto connection = WaylandConnection::open(nullptr);
    return connection &&
           (*connection)->offers(zwlr_gamma_control_manager_v1_interface.name, longestAnswer);
}

WlrDisplayService::WlrDisplayService(std::unique_ptr<WaylandConnection> connection,
                                     Surroundings with)
    : ListedDisplayService(with.log),
      _connection(std::move(connection)),
      _with(std::move(with)),
      _profiles({.runLoop = _with.runLoop,
                 .systemBus = _with.systemBus,
                 .changed = [this] { calibrationsChanged(); }}),
      _outputs(std::make_unique<WlrOutputs>(*_connection, [this] { outputsChanged(); })) {
    if (_with.runLoop != nullptr) {
        _watch = _with.runLoop->watchReadable(_connection->descriptor(), [this] { takeEvents(); });
    }
}

WlrDisplayService::~WlrDisplayService() = default;

std::vector<WlrOutput*> WlrDisplayService::outputs() {
    std::vector<WlrOutput*> complete;
    for (const auto& output : _outputs->all()) {
        if (output->wayland.isComplete()) {
            if (output->display.id == 0) {
                identify(*output);
            }
            complete.push_back(output.get());
        }
    }
    // Wayland has no main display. The one at the desktop's origin is taken for it, because a
    // wake-up may announce the outputs again in any order.
    const auto place = [](const WlrOutput* output) {
        const auto& [name, model, width, height, bounds] = output->wayland.properties();
        const bool isAtOrigin = bounds.x == 0 && bounds.y == 0;
        return std::tuple(!isAtOrigin, bounds.x, bounds.y, name);
    };
    std::ranges::sort(complete, {}, place);
    return complete;
}

void WlrDisplayService::identify(WlrOutput& output) {
    const WaylandOutput::Properties& properties = output.wayland.properties();
    output.display.connector = properties.name;
    output.display.productName = properties.model;
    output.display.identity = {.widthInMillimetres = properties.widthInMillimetres,
                               .heightInMillimetres = properties.heightInMillimetres};
    tonquil::identify(output.display, readKernelEdid(_with.connectors, properties.name));
    output.display.id = _listing.idFor(properties.name, output.display.identity);
}

WlrOutput* WlrDisplayService::find(DisplayID display) {
    const auto all = outputs();
    const auto found = std::ranges::find_if(all, [=](const WlrOutput* output) {
        return display == 0 || output->display.id == display;
    });
    return found == all.end() ? nullptr : *found;
}

WlrOutput* WlrDisplayService::correctable(DisplayID display) {
    WlrOutput* found = find(display);
    if (found != nullptr && found->gamma.state() == WlrGammaControl::State::Released) {
        _outputs->askForGamma(*found);
        const auto isAnswered = [&] {
            found = find(display);
            return found == nullptr || found->gamma.state() != WlrGammaControl::State::Asked;
        };
        static_cast<void>(_connection->waitUntil(isAnswered, longestGammaAnswer));
        retryLater();
    }
    if (found == nullptr) {
        _listing.reportGone(display);
        return nullptr;
    }
    if (const std::string reason = found->gamma.obstacle(); !reason.empty()) {
        _listing.report(display, found->wayland.properties().name + ": " + reason);
        return nullptr;
    }
    _listing.forget(display);
    return found;
}

std::vector<ListedDisplay> WlrDisplayService::layout() {
    std::vector<ListedDisplay> displays;
    for (const WlrOutput* output : outputs()) {
        ListedDisplay display = output->display;
        display.bounds = output->wayland.properties().bounds;
        display.rampSize = output->gamma.size();
        display.obstacle = output->gamma.obstacle();
        display.isTaken = output->gamma.isTaken();
        displays.push_back(std::move(display));
    }
    return displays;
}

void WlrDisplayService::catchUp() {
    if (_with.runLoop != nullptr) {
        return;
    }
    if (_connection->waitForAnswers(longestAnswer)) {
        static_cast<void>(
            _connection->waitUntil([this] { return _outputs->areAnswered(); }, longestGammaAnswer));
    }
    askForProfiles();
}

void WlrDisplayService::setTransferTable(DisplayID display, const GammaTable& table) {
    const DisplayBatch batch(*this);
    WlrOutput* output = correctable(display);
    _wanted.insert(output == nullptr ? display : output->display.id);
    if (output == nullptr) {
        _allReached = false;
        return;
    }
    if (output->ramp.size() != output->gamma.size()) {
        output->ramp = HardwareRamp(output->gamma.size());
    }
    output->ramp.setTable(table);
    output->isRampUnsent = true;
}

std::uint32_t WlrDisplayService::getTransferTable(DisplayID display, GammaTable& table) {
    const WlrOutput* output = find(display);
    if (output == nullptr) {
        _listing.reportGone(display);
        return 0;
    }
    if (output->gamma.state() == WlrGammaControl::State::Missing) {
        _listing.report(display,
                        output->wayland.properties().name + ": " + output->gamma.obstacle());
        return 0;
    }
    // Of a display that another program holds the size is not known, and hardly ever below a
    // table's.
    const std::uint32_t size = output->gamma.size();
    const std::uint32_t count = size == 0 ? GammaTable::capacity : size;
    return _profiles.calibration(output->display.connector, std::min(count, GammaTable::capacity))
        .getTable(table);
}

void WlrDisplayService::restoreSystemCalibration(std::span<const DisplayID> displays) {
    const DisplayBatch batch(*this);
    for (const DisplayID display : displays) {
        WlrOutput* output = find(display);
        if (output == nullptr) {
            _listing.reportGone(display);
            _allReached = false;
            continue;
        }
        _wanted.erase(output->display.id);
        output->isRampUnsent = false;
        output->gamma.release();
    }
}

void WlrDisplayService::beginBatch() {
    _allReached = true;
}

bool WlrDisplayService::endBatch() {
    std::vector<DisplayID> set;
    for (const auto& output : _outputs->all()) {
        if (output->isRampUnsent) {
            set.push_back(output->display.id);
        }
    }
    sendRamps();
    if (_with.runLoop == nullptr && !set.empty()) {
        // A refusal that came later would go unnoticed.
        _allReached = _connection->waitForAnswers(longestAnswer) && _allReached;
        for (const DisplayID display : set) {
            const WlrOutput* output = find(display);
            _allReached = _allReached && output != nullptr && output->gamma.isInUse();
        }
    }
    if (_connection->isLost()) {
        connectionLost();
        _allReached = false;
    }
    return _allReached;
}

// One set of ramps at a time is on its way. What is set meanwhile replaces what was set before, so
// that a compositor that is slower than a slider is never behind by more than one ramp.
void WlrDisplayService::sendRamps() {
    if (_sent && _with.runLoop != nullptr) {
        return;
    }
    bool isSomethingSent = false;
    for (const auto& output : _outputs->all()) {
        if (!output->isRampUnsent) {
            continue;
        }
        output->isRampUnsent = false;
        if (output->gamma.set(output->ramp)) {
            isSomethingSent = true;
        } else {
            _allReached = false;
            _listing.report(output->display.id,
                            output->wayland.properties().name + " did not take its gamma ramp.");
        }
    }
    if (isSomethingSent && _with.runLoop != nullptr) {
        _sent.reset(wl_display_sync(_connection->get()));
        static constexpr wl_callback_listener listener{
            .done = [](void* data, wl_callback*, std::uint32_t) {
                auto* const service = static_cast<WlrDisplayService*>(data);
                service->_sent.reset();
                service->sendRamps();
            }};
        wl_callback_add_listener(_sent.get(), &listener, this);
    }
    _connection->flush();
}

void WlrDisplayService::takeEvents() {
    _connection->takeEvents();
    if (_connection->isLost()) {
        connectionLost();
        return;
    }
    // An output that came has been bound and its gamma control asked for.
    _connection->flush();
}

void WlrDisplayService::connectionLost() {
    if (std::exchange(_isLostKnown, true)) {
        return;
    }
    _watch.reset();
    _quiet.reset();
    _retry.reset();
    _news.reset();
    if (_with.lost) {
        _with.lost();
    }
    _listing.report(0, "The Wayland compositor has gone.");
}

std::unique_ptr<DisplayService::Subscription> WlrDisplayService::registerReconfigurationCallback(
    ReconfigurationCallback callback) {
    auto subscription = _listing.add(std::move(callback));
    // What has changed since the displays were listed is told like any other change.
    if (_listing.announced() != layout()) {
        outputsChanged();
    }
    return subscription;
}

void WlrDisplayService::outputsChanged() {
    if (_with.runLoop != nullptr && !_isLostKnown) {
        _quiet = _with.runLoop->callOnce(quietTime, [this] { displaysChanged(); });
    }
}

void WlrDisplayService::askForProfiles() {
    std::vector<std::string> connectors;
    for (const WlrOutput* output : outputs()) {
        connectors.push_back(output->display.connector);
    }
    _profiles.ask(std::move(connectors));
}

void WlrDisplayService::calibrationsChanged() {
    if (_with.runLoop != nullptr && !_isLostKnown) {
        _news = _with.runLoop->callOnce(0ms, [this] {
            _news.reset();
            for (const ListedDisplay& display : layout()) {
                _listing.announceCalibration(display.id);
            }
        });
    }
}

// Within the quiet time an output can go and come back, or its gamma control be taken and lent
// again. It is then described as before, but its ramp is lost.
void WlrDisplayService::announceLosses() {
    for (const WlrOutput* output : outputs()) {
        if (isIdle(*output) && _wanted.contains(output->display.id)) {
            _listing.announceAgain(output->display.id);
        }
    }
}

void WlrDisplayService::displaysChanged() {
    announceLosses();
    _listing.announce(layout());
    askForProfiles();
    // With the correction off nothing was set, and another program may have the display.
    for (WlrOutput* output : outputs()) {
        if (isIdle(*output)) {
            output->gamma.release();
        }
    }
    _connection->flush();
    retryLater();
}

void WlrDisplayService::retryLater() {
    const bool isNeeded = std::ranges::any_of(
        _outputs->all(), [](const auto& output) { return output->gamma.isWorthAnotherTry(); });
    if (isNeeded && !_retry && _with.runLoop != nullptr && !_isLostKnown) {
        _retry = _with.runLoop->callOnce(retryInterval, [this] { retry(); });
    }
}

void WlrDisplayService::retry() {
    for (const auto& output : _outputs->all()) {
        if (output->gamma.isWorthAnotherTry()) {
            _outputs->askForGamma(*output);
        }
    }
    _connection->flush();
    _retry.reset();
    retryLater();
}

}  // namespace tonquil
