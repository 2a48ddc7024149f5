// SPDX-License-Identifier: MIT
// Finds out whether there is anything to start, and starts it.
#include <QApplication>
#include <QLocale>
#include <QPixmapCache>
#include <QStyleHints>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/choice/DisplayServiceChoice.h"
#include "platform/dbus/BusAddresses.h"
#include "platform/posix/InstanceName.h"
#include "platform/posix/InstanceSocket.h"
#include "platform/posix/StandardStreams.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/x11/XcbReply.h"
#include "program/Groundwork.h"
#include "program/Program.h"
#include "program/ProgramEnvironment.h"
#include "program/ToolkitBus.h"
#include "ui/Accessibility.h"
#include "ui/style/QuietStyle.h"
#include "windows/language/Language.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

/// Whether there is a desktop; if there are two, chooses the toolkit's. Checked here because the
/// toolkit aborts without a useful message if it finds no display server.
bool findDesktop() {
    if (!environment("QT_QPA_PLATFORM").empty()) {
        return true;
    }
    // Never by an X server inside the Wayland session whose displays are corrected.
    if (isWaylandServed()) {
        qputenv("QT_QPA_PLATFORM", environment("DISPLAY").empty() ? "wayland" : "wayland;xcb");
        return true;
    }
    const std::unique_ptr<xcb_connection_t, DisconnectXcb> connection(
        xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) == 0) {
        return true;
    }
    if (!environment("WAYLAND_DISPLAY").empty()) {
        logLine("This Wayland desktop does not let programs correct its displays.");
        return false;
    }
    std::string line = "There is no desktop here: no X server answers on \"";
    line += environment("DISPLAY");
    line += "\".";
    logLine(line);
    return false;
}

/// The exit status of a later instance, after the first one has answered its requests.
int endWith(const std::string& answer) {
    if (!answer.empty()) {
        logLine(answer);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

void setQuietStyle() {
    auto* const style = new QuietStyle;
    QApplication::setStyle(style);
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the toolkit has taken it over.

/// The arguments for the toolkit: only the session manager's. It would take some of our options for
/// its own.
struct ToolkitArguments {
    ToolkitArguments(int argc, char** argv) : values{argv[0]} {
        for (int index = 1; index + 1 < argc && std::string_view(argv[index]) != "--"; ++index) {
            if (std::string_view(argv[index]) == "-session") {
                values.insert(values.end(), {argv[index], argv[index + 1]});
            }
        }
        count = static_cast<int>(values.size());
    }

    std::vector<char*> values;
    int count = 0;
};

std::unique_ptr<QApplication> makeApplication(ToolkitArguments& arguments) {
    setQuietStyle();
    auto application = std::make_unique<QApplication>(arguments.count, arguments.values.data());
    // The toolkit asks for a control's interface while it is made, and keeps what it gets.
    installAccessibleInterfaces();
    QApplication::setApplicationName(QStringLiteral("tonquil"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tonquil"));
    QApplication::setWindowIcon(programIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("tonquil"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // The panel may have the keyboard for hours, and a blinking cursor would wake it up twice a
    // second for all that time.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    // Enough for what the windows show at a time; by itself it would grow to ten times that.
    constexpr int cacheKibibytes = 1024;
    QPixmapCache::setCacheLimit(cacheKibibytes);
    return application;
}

// The stored curves come before anything that could wait: the buses, the toolkit, the windows.
int runFirstOrHandOver(const std::vector<Request>& requests, ToolkitArguments& arguments) {
    const auto folders = XdgFolders::fromEnvironment();
    const auto runtime = folders ? folders->makeRuntime() : tl::make_unexpected(folders.error());
    if (!runtime) {
        report(runtime.error());
        return EXIT_FAILURE;
    }
    const std::filesystem::path socket = *runtime / instanceName();
    // Created later, but destroyed last.
    std::unique_ptr<QApplication> application;
    QtRunLoop runLoop;
    Program* program = nullptr;
    const auto start = InstanceSocket::claimOrHandOver(
        socket, textFromRequests(requests), runLoop,
        [&program](const std::string& text) {
            return program == nullptr ? "Tonquil is still starting." : program->answer(text);
        },
        logLine);
    if (!start) {
        report(start.error());
        return EXIT_FAILURE;
    }
    if (const auto* const answer = std::get_if<std::string>(&*start)) {
        return endWith(*answer);
    }
    if (wantsEnd(requests)) {
        return EXIT_SUCCESS;
    }
    Groundwork groundwork(*folders, runLoop);
    groundwork.applyStoredCurves();
    ToolkitBus bus;
    application = makeApplication(arguments);
    bus.settle();
    const Language language(chosenLanguage(QLocale::system().uiLanguages(), translatedLanguages()));
    Program first(groundwork, {.system = systemBusAddress(), .session = bus.sessionAddress()});
    program = &first;
    return first.run(requests);
}

int start(int argc, char** argv) {
    constexpr int wrongUsage = 2;
    const auto line = readCommandLine(
        std::span<const char* const>(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!line) {
        report(line.error());
        return wrongUsage;
    }
    if (line->wantsHelp) {
        std::fputs(commandLineHelp().c_str(), stdout);
        return EXIT_SUCCESS;
    }
    if (line->wantsVersion) {
        std::puts(
            ("tonquil " TONQUIL_VERSION "\nDisplay services: " + builtInDisplayServices()).c_str());
        return EXIT_SUCCESS;
    }
    if (!findDesktop()) {
        return EXIT_FAILURE;
    }
    ToolkitArguments arguments(argc, argv);
    return runFirstOrHandOver(line->requests, arguments);
}

}  // namespace

}  // namespace tonquil

int main(int argc, char** argv) {
    tonquil::fillStandardStreams();
    return tonquil::start(argc, argv);
}
