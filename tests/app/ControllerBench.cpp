// SPDX-License-Identifier: MIT
#include "tests/app/ControllerBench.h"

#include <utility>

namespace tonquil {

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
    program.service = std::make_unique<RecordedService>(desk, journal, desktop, barred);
    program.registry = std::make_unique<ScreenRegistry>(*program.service);
    program.center = std::make_unique<DDHotKeyCenter>(hotKeys);
    RecordedService& service = *program.service;
    ScreenRegistry& registry = *program.registry;
    DDHotKeyCenter& center = *program.center;
    ReconfigurationCounter& counter = program.counter;
    const auto serve = [this](Log serverLog) {
        return TQPlayerServer::init(
            {.runLoop = loop,
             .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                 return std::make_unique<FakeSocket>(network);
             },
             .host = std::make_shared<FakeHost>(),
             .guid = _program->guid,
             .log = std::move(serverLog)});
    };
    const auto end = [this] { hasEnded = true; };
    const auto say = [this](std::string_view line) { log.emplace_back(line); };
    const std::vector<SessionEvents*> events{&desktop};
    const ControllerSurroundings surroundings{
        service, registry, counter,      preferences, desktop, loop,    panel,   panel,
        dialogs, targets,  desktop,      alerts,      desktop, desktop, desktop, center,
        serve,   events,   presetFolder, "",          end,     say};
    program.controller = std::make_unique<TQController>(surroundings);
    program.controller->applicationDidFinishLaunching();
}

void ControllerBench::edit(PanelSlider slider, float value, bool isLinked) {
    panel.shown[slider] = value;
    controller().applyGamma(slider, isLinked);
    loop.runPosted();
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
