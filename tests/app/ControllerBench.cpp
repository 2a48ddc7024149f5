// SPDX-License-Identifier: MIT
#include "tests/app/ControllerBench.h"

#include <utility>

namespace tonquil {

void MemoryPreferences::registerDefaults(PropertyValue defaults) {
    _journal.emplace_back("defaults registered");
    _defaults = std::move(defaults);
}

void MemoryPreferences::setValue(std::string_view key, PropertyValue value) {
    if (key == settingsKey::applyCorrection) {
        _journal.push_back(value == true ? "correction on" : "correction off");
    }
    stored[std::string(key)] = std::move(value);
    if (_changed) {
        _runLoop.post([this] {
            if (_changed) {
                _changed();
            }
        });
    }
}

std::unique_ptr<PreferencesStore::Subscription> MemoryPreferences::subscribe(
    std::function<void()> changed) {
    class End final : public Subscription {
     public:
        explicit End(std::function<void()>& handler) : _handler(handler) {}
        End(const End&) = delete;
        End& operator=(const End&) = delete;
        ~End() override { _handler = nullptr; }

     private:
        std::function<void()>& _handler;
    };
    _journal.emplace_back("preferences observed");
    _changed = std::move(changed);
    return std::make_unique<End>(_changed);
}

const PropertyValue* MemoryPreferences::valueForKey(std::string_view key) const {
    const PropertyValue* value = entry(stored, key);
    return value != nullptr ? value : entry(_defaults, key);
}

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
    _program.emplace();
    Program& program = *_program;
    program.service = std::make_unique<RecordedService>(desk, journal, windowSystem);
    program.registry = std::make_unique<ScreenRegistry>(*program.service);
    program.events = std::make_unique<ScriptedEvents>(journal);
    program.center = std::make_unique<DDHotKeyCenter>(hotKeys);
    program.controller = std::make_unique<TQController>(
        ControllerSurroundings{*program.service,
                               *program.registry,
                               program.counter,
                               preferences,
                               recovery,
                               recordedLoop,
                               panel,
                               panel,
                               dialogs,
                               targets,
                               windows,
                               alerts,
                               presence,
                               windowSystem,
                               programs,
                               *program.center,
                               [this] { return openServer(); },
                               {program.events.get()},
                               "",
                               [this] { hasEnded = true; },
                               [this](std::string_view line) { log.emplace_back(line); }});
    program.controller->applicationDidFinishLaunching();
}

std::unique_ptr<TQPlayerServer> ControllerBench::openServer() {
    auto server =
        TQPlayerServer::init({.runLoop = loop,
                              .openSocket = [this]() -> Result<std::unique_ptr<DatagramSocket>> {
                                  return std::make_unique<ScriptedSocket>(network);
                              },
                              .host = std::make_shared<ScriptedHost>(),
                              .guid = _program->guid,
                              .log = [this](std::string_view line) { log.emplace_back(line); }});
    return server ? std::move(*server) : nullptr;
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

int ControllerBench::firstEntry(DisplayID display) {
    return desk.find(display)->ramp.channel(0).front();
}

std::shared_ptr<KVGammaCurve> ControllerBench::curve(DisplayID display) {
    return _program->registry->screenWithDirectDisplayID(display)->gammaCurve();
}

}  // namespace tonquil
