// SPDX-License-Identifier: MIT
#include "tests/program/Desk.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <thread>

#include "files/FileHandle.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/Succeeded.h"

namespace tonquil {

namespace {

constexpr const char* finder = R"(
import pyatspi, sys
role, name = sys.argv[1:]
for program in pyatspi.Registry.getDesktop(0):
    found = pyatspi.findDescendant(
        program, lambda each: each.name == name and each.getRoleName() == role)
    if found:
        place = found.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        print(place.x, place.y, place.width, place.height)
)";

}  // namespace

bool eventually(const std::function<bool()>& question) {
    bool isYes = question();
    for (int count = 0; count < 400 && !isYes; ++count) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        isYes = question();
    }
    return isYes;
}

bool stays(const std::function<bool()>& question, std::chrono::milliseconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    bool isYes = true;
    while (isYes && std::chrono::steady_clock::now() < end) {
        isYes = question();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return isYes;
}

Desk::Desk(bool hasWindowManager) {
    mustSucceed(_server->setEdid("DUMMY0", buildEdid({.serial = 1})));
    mustSucceed(_server->setEdid("DUMMY1", buildEdid({.serial = 2})));
    mustSucceed(_server->plug("DUMMY1", "1280x1024"));
    std::filesystem::create_directories(folder() / "runtime");
    std::filesystem::permissions(folder() / "runtime", std::filesystem::perms::owner_all);
    std::filesystem::create_directories(folder() / "config/tonquil");
    // One font family for every request, so that the panel has the same height everywhere.
    std::ofstream(folder() / "fonts.conf")
        << "<fontconfig><dir>/usr/share/fonts/truetype/dejavu</dir>"
           "<cachedir>/var/cache/fontconfig</cachedir><match><edit name=\"family\" mode=\"assign\" "
           "binding=\"strong\"><string>DejaVu Sans</string></edit></match></fontconfig>";
    if (hasWindowManager) {
        ProcessRequest openbox = requestFor({"openbox"});
        // Its themes are in the data folders that the desk hides.
        openbox.environment.erase("XDG_DATA_DIRS");
        _manager = BackgroundProcess::start(openbox).value();
        // Openbox is ready once it has announced its name.
        EXPECT_TRUE(eventually([this] {
            return run({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"})
                       .standardOutput.find("window id") != std::string::npos;
        }));
    }
}

ProcessRequest Desk::requestFor(const std::vector<std::string>& command) const {
    const std::string home = folder();
    return {.command = command,
            .environment = {{"DISPLAY", _server->display()},
                            {"HOME", home},
                            {"XDG_CONFIG_HOME", home + "/config"},
                            {"XDG_STATE_HOME", home + "/state"},
                            {"XDG_RUNTIME_DIR", home + "/runtime"},
                            // Hides any programs of this machine that change ramps, too.
                            {"XDG_DATA_HOME", home + "/data"},
                            {"XDG_DATA_DIRS", home + "/none"},
                            {"LC_ALL", "C.UTF-8"},
                            {"FONTCONFIG_FILE", home + "/fonts.conf"},
                            // Neither bus exists, whatever this machine has, until a test starts
                            // one for the session; then all controls are reported on it.
                            {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + home + "/none"},
                            {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/session-bus"},
                            {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}},
            .unset = {"LANGUAGE", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_SCALE_FACTOR",
                      "XAUTHORITY", "TONQUIL_DISPLAY_SERVICE"}};
}

void Desk::start(const PropertyValue& preferences) {
    // The hint of the first start would move the rows.
    PropertyValue all = {{"Window Frame ControlWindow", "200 200 320 470"}, {"HasEdited", true}};
    all.update(this->preferences());
    all.update(preferences);
    writePreferences(all);
    startWithoutPanel();
    EXPECT_TRUE(eventually([this] { return hasPanel(); })) << _program->standardError();
}

void Desk::startWithoutPanel() {
    _program = begin({TONQUIL});
    // Before it listens, a request would become the running program itself.
    const std::string instance = "instance-_" + _server->display().substr(1);
    EXPECT_TRUE(eventually(
        [&] { return std::filesystem::exists(folder() / "runtime/tonquil" / instance); }));
}

void Desk::request(const std::string& argument) const {
    const ProcessResult result = run({TONQUIL, argument});
    EXPECT_TRUE(result.succeeded()) << argument << result.standardError;
}

int Desk::waitForEnd() {
    const auto result = _program->wait(std::chrono::seconds(20));
    return result ? result->exitStatus : -1;
}

ProcessResult Desk::run(const std::vector<std::string>& command) const {
    return tonquil::run(requestFor(command)).value();
}

std::unique_ptr<BackgroundProcess> Desk::begin(const std::vector<std::string>& command) const {
    return BackgroundProcess::start(requestFor(command)).value();
}

void Desk::xdotool(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "xdotool");
    EXPECT_TRUE(run(arguments).succeeded()) << arguments[1];
}

Desk::Place Desk::panel() const {
    const auto found = windows("--name", "^Tonquil$");
    return found.empty() ? Place{} : found.back();
}

std::vector<Desk::Place> Desk::windows(const char* by, const char* pattern) const {
    const std::string text = run({"xdotool", "search", "--onlyvisible", by, pattern,
                                  "getwindowgeometry", "--shell", "%@"})
                                 .standardOutput;
    std::vector<Place> places;
    for (auto at = text.find("WINDOW="); at != std::string::npos;
         at = text.find("WINDOW=", at + 1)) {
        Place& place = places.emplace_back();
        std::sscanf(text.c_str() + at, "WINDOW=%*d X=%d Y=%d WIDTH=%d HEIGHT=%d", &place.x,
                    &place.y, &place.width, &place.height);
    }
    return places;
}

bool Desk::hasWindow(const Place& place) const {
    return std::ranges::count(windows(), place) != 0;
}

// The service that it starts for controls lies where Debian's packages are, which the desk hides.
void Desk::startSessionBus() {
    _session =
        begin({"env", "-u", "XDG_DATA_DIRS", "dbus-daemon", "--session", "--nofork", "--nopidfile",
               "--print-address", "--address=unix:path=" + (folder() / "session-bus").native()});
    ASSERT_TRUE(_session->waitForOutput("\n", std::chrono::seconds(20)));
}

Desk::Place Desk::control(const std::string& role, const std::string& name) const {
    Place place;
    EXPECT_TRUE(eventually([&] {
        const auto found = run({"/usr/bin/python3", "-c", finder, role, name});
        return std::sscanf(found.standardOutput.c_str(), "%d %d %d %d", &place.x, &place.y,
                           &place.width, &place.height) == 4;
    })) << role
        << ' ' << name;
    return place;
}

void Desk::clickControl(const std::string& role, const std::string& name) const {
    const Place place = control(role, name);
    click(place.x + place.width / 2, place.y + place.height / 2);
}

Desk::Place Desk::pointer() const {
    Place place;
    const std::string text = run({"xdotool", "getmouselocation", "--shell"}).standardOutput;
    std::sscanf(text.c_str(), "X=%d Y=%d", &place.x, &place.y);
    return place;
}

void Desk::movePointer(int x, int y) const {
    xdotool({"mousemove", std::to_string(x), std::to_string(y)});
}

void Desk::click(int x, int y, const char* button) const {
    xdotool({"mousemove", std::to_string(x), std::to_string(y), "click", button});
}

void Desk::drag(int row, double end) const {
    const Place place = panel();
    const int from = place.x + place.width * 2 / 5;
    const int to = place.x + static_cast<int>(place.width * end);
    const std::string y = std::to_string(place.y + row);
    // A user takes a moment between reaching the panel and pressing.
    std::vector<std::string> moves{"mousemove", std::to_string(from), y,  "sleep",
                                   "0.1",       "mousedown",          "1"};
    for (int x = from; x != to; x += to > from ? 1 : -1) {
        moves.insert(moves.end(), {"mousemove", std::to_string(x), y});
    }
    moves.insert(moves.end(), {"mouseup", "1"});
    xdotool(moves);
}

Ramp Desk::correct(const std::string& connector, double end) const {
    const Ramp before = ramp(connector);
    Ramp now;
    drag(masterRow, end);
    EXPECT_TRUE(eventually([&] {
        now = ramp(connector);
        return now != before &&
               stays([&] { return ramp(connector) == now; }, std::chrono::milliseconds(200));
    }));
    return now;
}

Ramp Desk::ramp(const std::string& connector) const {
    return _reader.read(connector).value();
}

std::filesystem::path Desk::recoveryFile() const {
    return folder() /
           ("state/tonquil/recovery-instance-_" + _server->display().substr(1) + ".plist");
}

PropertyValue Desk::preferences() const {
    std::ifstream file(folder() / "config/tonquil/preferences.plist", std::ios::binary);
    const std::vector<char> characters(std::istreambuf_iterator<char>(file), {});
    const std::vector<std::uint8_t> bytes(characters.begin(), characters.end());
    return readPropertyList(bytes).value_or(PropertyValue::object());
}

void Desk::writePreferences(const PropertyValue& changes) const {
    const auto file = folder() / "config/tonquil/preferences.plist";
    // Two programs that save at once would lose what one of them changed.
    const std::string lockPath = file.native() + ".lock";
    const FileHandle lock(::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    EXPECT_EQ(flock(lock.get(), LOCK_EX), 0);
    PropertyValue all = preferences();
    all.update(changes);
    const auto beside = folder() / "config/tonquil/preferences.plist.other";
    std::ofstream(beside, std::ios::binary) << writePropertyList(all).value();
    std::filesystem::rename(beside, file);
}

}  // namespace tonquil
