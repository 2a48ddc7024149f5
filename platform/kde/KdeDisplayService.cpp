// SPDX-License-Identifier: MIT
#include "platform/kde/KdeDisplayService.h"

#include <algorithm>
#include <exception>
#include <tuple>
#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

using namespace std::chrono_literals;

/// A compositor that is alive answers in far less.
constexpr std::chrono::milliseconds longestAnswer = 2s;

/// What tells a display from all others, also in another session: the monitor and its connector.
std::string keyOf(const KdeOutput::Properties& properties) {
    std::string key = properties.uuid;
    if (key.empty() && properties.edid) {
        for (const std::uint32_t number :
             {properties.edid->vendorNumber, properties.edid->modelNumber,
              properties.edid->serialNumber}) {
            key += std::to_string(number) + "-";
        }
    }
    return key + "@" + properties.name;
}

}  // namespace

Result<std::unique_ptr<KdeDisplayService>> KdeDisplayService::open(const char* display,
                                                                   Surroundings with) {
    auto connection = WaylandConnection::open(display);
    if (!connection) {
        return tl::unexpected(std::move(connection.error()));
    }
    std::unique_ptr<KdeDisplayService> service(
        new KdeDisplayService(std::move(*connection), std::move(with)));
    // First which globals there are, then what they say.
    if (!service->_connection->waitForAnswers(longestAnswer)) {
        return problem(TONQUIL_TEXT("Problem", "The Wayland compositor does not answer."));
    }
    if (service->_outputs->management() == nullptr) {
        return problem(TONQUIL_TEXT("Problem", "This is not a KDE Plasma desktop."));
    }
    static_cast<void>(service->_connection->waitForAnswers(longestAnswer));
    service->_listing.begin(service->layout());
    service->_quiet.reset();
    return service;
}

bool KdeDisplayService::isOffered() {
    const auto connection = WaylandConnection::open(nullptr);
    return connection &&
           (*connection)->offers(kde_output_management_v2_interface.name, longestAnswer);
}

KdeDisplayService::KdeDisplayService(std::unique_ptr<WaylandConnection> connection,
                                     Surroundings with)
    : ListedDisplayService(with.log),
      _connection(std::move(connection)),
      _with(std::move(with)),
      _files(_with.state),
      _outputs(std::make_unique<KdeOutputs>(*_connection, [this] {
          match();
          outputsChanged();
      })) {
    if (_with.runLoop != nullptr) {
        _watch = _with.runLoop->watchReadable(_connection->descriptor(), [this] { takeEvents(); });
    }
}

KdeDisplayService::~KdeDisplayService() {
    constexpr std::chrono::milliseconds longestFarewell = 500ms;
    try {
        for (auto& [key, display] : _displays) {
            display.correction.hurry();
        }
        static_cast<void>(_connection->waitUntil(
            [this] {
                return std::ranges::all_of(present(), [](const Display* display) {
                    return display->correction.isSettled();
                });
            },
            longestFarewell));
    } catch (const std::exception&) {
        // Out of memory: what has been sent, and the note, stay.
        return;
    }
}

void KdeDisplayService::match() {
    for (auto& [key, display] : _displays) {
        display.output = nullptr;
    }
    // Where an output is announced anew before the old one goes, the later one counts.
    for (const auto& output : _outputs->all()) {
        if (output->isComplete() && output->properties().isEnabled) {
            displayOn(*output).output = output.get();
        }
    }
    for (auto& [key, display] : _displays) {
        display.correction.see(display.output,
                               _outputs->takeProfiles() ? _outputs->management() : nullptr);
    }
}

KdeDisplayService::Display& KdeDisplayService::displayOn(const KdeOutput& output) {
    const KdeOutput::Properties& properties = output.properties();
    const std::string key = keyOf(properties);
    const auto known = _displays.find(key);
    if (known != _displays.end()) {
        return known->second;
    }
    ListedDisplay listed;
    listed.connector = properties.name;
    listed.productName = properties.model;
    listed.identity = {.widthInMillimetres = properties.widthInMillimetres,
                       .heightInMillimetres = properties.heightInMillimetres};
    identify(listed, properties.edid);
    listed.id = _listing.idFor(properties.name, listed.identity);
    const KdeCorrection::Surroundings with{
        .files = _files,
        .runLoop = _with.runLoop,
        .flush = [this] { _connection->flush(); },
        .obstacleChanged = [this,
                            key](const std::string& detail) { obstacleChanged(key, detail); }};
    return _displays.try_emplace(key, std::move(listed), with, key).first->second;
}

std::vector<KdeDisplayService::Display*> KdeDisplayService::present() {
    std::vector<Display*> present;
    for (auto& [key, display] : _displays) {
        if (display.output != nullptr) {
            present.push_back(&display);
        }
    }
    // The one at the desktop's origin is taken for the main display.
    std::ranges::sort(present, {}, [](const Display* display) {
        const auto& [x, y, width, height] = display->output->properties().bounds;
        return std::tuple(x != 0 || y != 0, x, y, display->listed.connector);
    });
    return present;
}

KdeDisplayService::Display* KdeDisplayService::find(DisplayID display) {
    const auto all = present();
    const auto found = std::ranges::find_if(
        all, [=](const Display* each) { return display == 0 || each->listed.id == display; });
    return found == all.end() ? nullptr : *found;
}

KdeDisplayService::Display* KdeDisplayService::correctable(DisplayID display) {
    Display* found = find(display);
    if (found == nullptr) {
        _listing.reportGone(display);
    } else if (!_outputs->takeProfiles() || !found->output->properties().takesProfiles) {
        _listing.report(found->listed.id, found->listed.connector + ": " + obstacle(*found));
        found = nullptr;
    }
    _allReached = _allReached && found != nullptr;
    return found;
}

std::string KdeDisplayService::obstacle(const Display& display) const {
    return _outputs->takeProfiles() && display.output->properties().takesProfiles
               ? display.correction.obstacle()
               : TONQUIL_TEXT("Problem",
                              "The compositor takes no colour profile for this display.");
}

std::vector<ListedDisplay> KdeDisplayService::layout() {
    std::vector<ListedDisplay> layout;
    for (Display* display : present()) {
        ListedDisplay& listed = layout.emplace_back(display->listed);
        listed.bounds = display->output->properties().bounds;
        listed.rampSize = KdeProfileFiles::rampSize;
        listed.obstacle = obstacle(*display);
        listed.calibration = display->correction.calibration().fingerprint();
    }
    return layout;
}

void KdeDisplayService::catchUp() {
    // An output that came has to be asked first.
    if (_with.runLoop == nullptr && _connection->waitForAnswers(longestAnswer) &&
        std::ranges::any_of(_outputs->all(),
                            [](const auto& each) { return !each->isComplete(); })) {
        static_cast<void>(_connection->waitForAnswers(longestAnswer));
    }
}

void KdeDisplayService::setTransferTable(DisplayID display, const GammaTable& table) {
    const DisplayBatch batch(*this);
    if (Display* found = correctable(display)) {
        HardwareRamp ramp(KdeProfileFiles::rampSize);
        ramp.setTable(table);
        found->correction.correct(ramp);
    }
}

std::uint32_t KdeDisplayService::getTransferTable(DisplayID display, GammaTable& table) {
    Display* found = find(display);
    if (found == nullptr) {
        _listing.reportGone(display);
        return 0;
    }
    return found->correction.readCalibration().getTable(table);
}

void KdeDisplayService::restoreSystemCalibration() {
    const DisplayBatch batch(*this);
    for (auto& [key, display] : _displays) {
        display.correction.restore();
    }
}

void KdeDisplayService::restoreSystemCalibration(std::span<const DisplayID> displays) {
    const DisplayBatch batch(*this);
    for (const DisplayID display : displays) {
        if (Display* found = correctable(display)) {
            found->correction.restore();
        }
    }
}

void KdeDisplayService::beginBatch() {
    _allReached = true;
}

// A program without a run loop stays to hear whether the changes were made. One that has a run loop
// shows it later.
bool KdeDisplayService::endBatch() {
    if (_with.runLoop == nullptr) {
        const auto isSettled = [](const auto& each) { return each.second.correction.isSettled(); };
        static_cast<void>(_connection->waitUntil(
            [&] { return std::ranges::all_of(_displays, isSettled); }, longestAnswer));
        for (const auto& each : _displays) {
            if (!isSettled(each)) {
                _listing.report(each.second.listed.id,
                                each.second.listed.connector +
                                    ": the compositor has not confirmed the colour profile.");
            }
            _allReached =
                _allReached && isSettled(each) && each.second.correction.obstacle().empty();
        }
    }
    if (_connection->isLost()) {
        connectionLost();
        _allReached = false;
    }
    return _allReached;
}

void KdeDisplayService::obstacleChanged(const std::string& key, const std::string& detail) {
    const ListedDisplay& listed = _displays.at(key).listed;
    const std::string& obstacle = _displays.at(key).correction.obstacle();
    _listing.forget(listed.id);
    if (!obstacle.empty()) {
        _listing.report(listed.id, listed.connector + ": " + obstacle +
                                       (detail.empty() ? detail : " (" + detail + ")"));
    }
    outputsChanged();
}

void KdeDisplayService::takeEvents() {
    _connection->takeEvents();
    if (_connection->isLost()) {
        connectionLost();
    }
    // An output that came has been bound, which has it say what it is.
    _connection->flush();
}

void KdeDisplayService::connectionLost() {
    if (std::exchange(_isLostKnown, true)) {
        return;
    }
    _watch.reset();
    _quiet.reset();
    if (_with.lost) {
        _with.lost();
    }
    _listing.report(0, "The Wayland compositor has gone.");
}

std::unique_ptr<DisplayService::Subscription> KdeDisplayService::registerReconfigurationCallback(
    ReconfigurationCallback callback) {
    auto subscription = _listing.add(std::move(callback));
    // What has changed since the displays were listed is told like any other change.
    if (_listing.announced() != layout()) {
        outputsChanged();
    }
    return subscription;
}

void KdeDisplayService::outputsChanged() {
    if (_with.runLoop != nullptr && !_isLostKnown) {
        _quiet = _with.runLoop->callOnce(quietTime, [this] { displaysChanged(); });
    }
}

void KdeDisplayService::displaysChanged() {
    _listing.announce(layout());
    for (auto& [key, display] : _displays) {
        display.correction.keep();
    }
}

}  // namespace tonquil
