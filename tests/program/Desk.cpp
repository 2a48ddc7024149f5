// SPDX-License-Identifier: MIT
#include "tests/program/Desk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/Succeeded.h"

namespace tonquil {

bool eventually(const std::function<bool()>& question) {
    constexpr int tries = 400;
    for (int count = 0; count < tries; ++count) {
        if (question()) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return question();
}

bool stays(const std::function<bool()>& question, std::chrono::milliseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    while (std::chrono::steady_clock::now() < end) {
        if (!question()) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

Desk::Desk(WindowManager manager) : _server(XServer::start().value()) {
    mustSucceed(_server->setEdid("DUMMY0", buildEdid({.serial = 1})));
    mustSucceed(_server->setEdid("DUMMY1", buildEdid({.serial = 2})));
    mustSucceed(_server->plug("DUMMY1", "1280x1024"));
    _reader = std::make_unique<RampReader>(RampReader::connect(_server->display()).value());
    if (manager == WindowManager::Yes) {
        ProcessRequest openbox = request({"openbox"});
        // Its themes are there.
        openbox.environment.erase("XDG_DATA_DIRS");
        _manager = BackgroundProcess::start(openbox).value();
        // It is there when it has put its name up.
        EXPECT_TRUE(eventually([this] {
            const auto result = run(request({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}));
            return result && result->standardOutput.find("window id") != std::string::npos;
        }));
    }
}

ProcessRequest Desk::request(const std::vector<std::string>& command) const {
    ProcessRequest request;
    request.command = command;
    const std::string folder = _folder.path();
    request.environment = {{"DISPLAY", _server->display()},
                           {"HOME", folder},
                           {"XDG_CONFIG_HOME", folder + "/config"},
                           {"XDG_STATE_HOME", folder + "/state"},
                           {"XDG_RUNTIME_DIR", folder + "/runtime"},
                           // No program of this machine that changes ramps is found either.
                           {"XDG_DATA_HOME", folder + "/data"},
                           {"XDG_DATA_DIRS", folder + "/none"},
                           {"LC_ALL", "C.UTF-8"},
                           // Neither bus is there, whatever this machine has.
                           {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + folder + "/none"},
                           {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder + "/none"}};
    request.unset = {"LANGUAGE",        "WAYLAND_DISPLAY", "QT_QPA_PLATFORM",
                     "QT_SCALE_FACTOR", "XAUTHORITY",      "TONQUIL_DISPLAY_SERVICE"};
    return request;
}

void Desk::start(const PropertyValue& preferences) {
    writePreferences(preferences);
    startWithoutPanel({});
    EXPECT_TRUE(eventually([this] { return hasPanel(); })) << _program->standardError();
}

void Desk::startWithoutPanel(const std::vector<std::string>& arguments) {
    std::filesystem::create_directories(_folder.path() / "runtime");
    std::filesystem::permissions(_folder.path() / "runtime", std::filesystem::perms::owner_all);
    std::vector<std::string> command{TONQUIL};
    command.insert(command.end(), arguments.begin(), arguments.end());
    _program = BackgroundProcess::start(request(command)).value();
}

ProcessResult Desk::runBeside(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command{TONQUIL};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return run(request(command)).value();
}

int Desk::waitForEnd() {
    const auto result = _program->wait(std::chrono::seconds(20));
    return result ? result->exitStatus : -1;
}

void Desk::xdotool(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command{"xdotool"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    const auto result = run(request(command));
    EXPECT_TRUE(result && result->succeeded());
}

bool Desk::hasPanel() const {
    const auto result = run(request({"xdotool", "search", "--onlyvisible", "--name", "^Tonquil$"}));
    return result && result->succeeded();
}

namespace {

/// From lines as "X=12", of the last window that there are lines of.
Desk::Place placeFrom(const std::string& geometry) {
    Desk::Place place;
    std::istringstream lines(geometry);
    for (std::string line; std::getline(lines, line);) {
        const auto value = [&line](const char* name) {
            return line.starts_with(name) ? line.c_str() + std::string_view(name).size() : nullptr;
        };
        const std::map<const char*, int*> parts{{"X=", &place.x},
                                                {"Y=", &place.y},
                                                {"WIDTH=", &place.width},
                                                {"HEIGHT=", &place.height}};
        for (const auto& [name, part] : parts) {
            if (const char* text = value(name)) {
                *part = std::atoi(text);
            }
        }
    }
    return place;
}

}  // namespace

Desk::Place Desk::panel() const {
    const Place place = placeFrom(outputOf({"xdotool", "search", "--onlyvisible", "--name",
                                            "^Tonquil$", "getwindowgeometry", "--shell"}));
    EXPECT_GT(place.width, 0) << "There is no panel.";
    return place;
}

std::vector<Desk::Place> Desk::windows() const {
    std::vector<Place> places;
    std::istringstream ids(
        outputOf({"xdotool", "search", "--onlyvisible", "--class", "^tonquil$"}));
    for (std::string id; std::getline(ids, id);) {
        const Place place = placeFrom(outputOf({"xdotool", "getwindowgeometry", "--shell", id}));
        if (place.width > 0) {
            places.push_back(place);
        }
    }
    return places;
}

void Desk::movePanel(int x, int y) const {
    xdotool({"search", "--onlyvisible", "--name", "^Tonquil$", "windowmove", std::to_string(x),
             std::to_string(y)});
    EXPECT_TRUE(eventually([&] { return panel().x == x; }));
}

Desk::Point Desk::pointer() const {
    Point point;
    // "X=…", "Y=…", and more.
    std::istringstream lines(outputOf({"xdotool", "getmouselocation", "--shell"}));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("X=") || line.starts_with("Y=")) {
            (line[0] == 'X' ? point.x : point.y) = std::atoi(line.c_str() + 2);
        }
    }
    return point;
}

void Desk::movePointer(const Point& place) const {
    xdotool({"mousemove", std::to_string(place.x), std::to_string(place.y)});
}

std::string Desk::outputOf(const std::vector<std::string>& command) const {
    const auto result = run(request(command));
    return result ? result->standardOutput : std::string();
}

void Desk::drag(int row, double end) const {
    const Place place = panel();
    const int from = place.x + place.width * 2 / 5;
    const int to = place.x + static_cast<int>(place.width * end);
    const std::string y = std::to_string(place.y + row);
    // A hand takes a moment between coming to the panel and pressing.
    std::vector<std::string> moves{"mousemove", std::to_string(from), y,  "sleep",
                                   "0.1",       "mousedown",          "1"};
    for (int x = from; x != to; x += to > from ? 1 : -1) {
        moves.insert(moves.end(), {"mousemove", std::to_string(x), y});
    }
    moves.insert(moves.end(), {"mouseup", "1"});
    xdotool(moves);
}

Ramp Desk::ramp(const std::string& connector) const {
    return _reader->read(connector).value();
}

void Desk::setForeignRamp(const std::string& connector) const {
    mustSucceed(_server->xrandr({"--output", connector, "--gamma", "1.5:1:0.5"}));
}

std::filesystem::path Desk::preferencesFile() const {
    return _folder.path() / "config/tonquil/preferences.plist";
}

std::filesystem::path Desk::recoveryFile() const {
    return _folder.path() /
           ("state/tonquil/recovery-instance-_" + _server->display().substr(1) + ".plist");
}

PropertyValue Desk::preferences() const {
    std::ifstream file(preferencesFile(), std::ios::binary);
    const std::vector<char> characters(std::istreambuf_iterator<char>(file), {});
    const std::vector<std::uint8_t> bytes(characters.begin(), characters.end());
    return readPropertyList(bytes).value_or(PropertyValue::object());
}

void Desk::writePreferences(const PropertyValue& changes) const {
    PropertyValue all = preferences();
    all.update(changes);
    std::filesystem::create_directories(preferencesFile().parent_path());
    std::filesystem::path beside = preferencesFile();
    beside += ".other";
    std::ofstream(beside, std::ios::binary) << writePropertyList(all).value();
    std::filesystem::rename(beside, preferencesFile());
}

}  // namespace tonquil
