// SPDX-License-Identifier: MIT
#include "tests/app/ControllerBench.h"

#include <utility>

namespace tonquil {

void RecordedService::setTransferTable(DisplayID display, const GammaTable& table) {
    _journal.push_back("table " + std::to_string(display));
    SimulatedDisplayService::setTransferTable(display, table);
}

std::unique_ptr<DisplayService::Subscription> RecordedService::registerReconfigurationCallback(
    ReconfigurationCallback callback) {
    _journal.emplace_back("displays observed");
    return SimulatedDisplayService::registerReconfigurationCallback(std::move(callback));
}

ControllerBench::ControllerBench() {
    desk.plug(makeDisplay(left, 0));
    desk.plug(makeDisplay(right, 1000));
    preferences.wasSet = [this](std::string_view key) {
        if (key == settingsKey::applyCorrection) {
            journal.emplace_back(preferences.boolForKey(key) ? "correction on" : "correction off");
        }
        if (!preferences.subscribers.empty()) {
            loop.post([this] { preferences.tell(); });
        }
    };
}

SimulatedDisplay ControllerBench::makeDisplay(DisplayID display, double x) {
    SimulatedDisplay made;
    made.id = display;
    made.identity.serialNumber = 100 + display;
    made.connector = "DP-" + std::to_string(display);
    made.bounds = {x, 0, 1000, 800};
    made.ramp = HardwareRamp::straight(256);
    return made;
}

void ControllerBench::launch() {
    _program.reset();
    preferences.subscribers.clear();
    _program.emplace();
    Program& program = *_program;
    program.service = std::make_unique<RecordedService>(desk, journal, desktop);
    program.registry = std::make_unique<ScreenRegistry>(*program.service);
    program.center = std::make_unique<DDHotKeyCenter>(hotKeys);
    program.controller = std::make_unique<TQController>(
        ControllerSurroundings{*program.service,
                               *program.registry,
                               program.counter,
                               preferences,
                               desktop,
                               loop,
                               panel,
                               panel,
                               dialogs,
                               targets,
                               desktop,
                               alerts,
                               desktop,
                               desktop,
                               desktop,
                               *program.center,
                               [this](Log serverLog) { return openServer(std::move(serverLog)); },
                               {&desktop},
                               "",
                               [this] { hasEnded = true; },
                               [this](std::string_view line) { log.emplace_back(line); }});
    program.controller->applicationDidFinishLaunching();
}

Result<std::unique_ptr<TQPlayerServer>> ControllerBench::openServer(Log serverLog) {
    return TQPlayerServer::init({.runLoop = loop,
                                 .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                                     return std::make_unique<ScriptedSocket>(network);
                                 },
                                 .host = std::make_shared<ScriptedHost>(),
                                 .guid = _program->guid,
                                 .log = std::move(serverLog)});
}

void ControllerBench::launchAndSettle() {
    launch();
    loop.runPosted();
}

void ControllerBench::edit(PanelSlider slider, float value, bool isLinked) {
    panel.shown[slider] = value;
    controller().applyGamma(slider, isLinked);
    loop.runPosted();
}

void ControllerBench::set(std::string_view key, PropertyValue value) {
    preferences.setValue(key, std::move(value));
    loop.runPosted();
}

void ControllerBench::movePanel(double x) {
    panel.place.x = x;
    controller().panelMoved();
}

int ControllerBench::firstEntry(DisplayID display) {
    return desk.find(display)->ramp.channel(0).front();
}

std::shared_ptr<KVGammaCurve> ControllerBench::curve(DisplayID display) {
    return _program->registry->screenWithDirectDisplayID(display)->gammaCurve();
}

std::chrono::milliseconds ControllerBench::timeToReapply() {
    constexpr std::chrono::milliseconds step(100);
    const int corrected = firstEntry(left);
    desk.setForeignRamp(left, HardwareRamp::straight(256));
    std::chrono::milliseconds waited{};
    while (firstEntry(left) != corrected && waited < std::chrono::seconds(10)) {
        loop.advance(step);
        waited += step;
    }
    return waited;
}

}  // namespace tonquil
