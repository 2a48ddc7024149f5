// SPDX-License-Identifier: MIT
// Finds out whether there is anything to start, and starts it.
#include <QApplication>
#include <QLocale>
#include <QStyleHints>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "platform/choice/DisplayServiceChoice.h"
#include "platform/posix/InstanceSocket.h"
#include "platform/x11/XcbReply.h"
#include "program/Program.h"
#include "program/ProgramEnvironment.h"
#include "windows/language/Language.h"
#include "windows/panel/PanelIcons.h"
#include "windows/panel/QuietStyle.h"

namespace tonquil {

namespace {

/// Whether there is a desktop to be on, and, where there are two, which one the toolkit takes: it
/// aborts where it finds no display server, and says nothing of use.
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

int handOver(const std::filesystem::path& socket, const std::vector<Request>& requests) {
    const auto answer = InstanceSocket::handOver(socket, textFromRequests(requests));
    if (!answer) {
        report(answer.error());
        return EXIT_FAILURE;
    }
    if (!answer->empty()) {
        logLine(*answer);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

int runFirstOrHandOver(const std::vector<Request>& requests) {
    const auto folders = XdgFolders::fromEnvironment();
    const auto runtime = folders ? folders->makeRuntime() : tl::make_unexpected(folders.error());
    if (!runtime) {
        report(runtime.error());
        return EXIT_FAILURE;
    }
    const std::filesystem::path socket = *runtime / instanceName();
    QtRunLoop runLoop;
    Program* program = nullptr;
    const auto listener = InstanceSocket::claim(
        socket, runLoop,
        [&program](const std::string& text) {
            return program == nullptr ? "Tonquil is still starting." : program->answer(text);
        },
        logLine);
    if (!listener) {
        report(listener.error());
        return EXIT_FAILURE;
    }
    if (*listener == nullptr) {
        return handOver(socket, requests);
    }
    if (wantsEnd(requests)) {
        return EXIT_SUCCESS;
    }
    Program first(*folders);
    program = &first;
    return first.run(requests);
}

void setQuietStyle() {
    auto* const style = new QuietStyle;
    QApplication::setStyle(style);
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the toolkit has taken it over.

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
        std::puts("tonquil " TONQUIL_VERSION);
        return EXIT_SUCCESS;
    }
    if (!findDesktop()) {
        return EXIT_FAILURE;
    }
    setQuietStyle();
    // The toolkit has options of its own, and would take some of ours for them. The session
    // manager's is for it.
    std::vector<char*> ours{argv[0]};
    for (int index = 1; index + 1 < argc; ++index) {
        if (std::string_view(argv[index]) == "-session") {
            ours.insert(ours.end(), {argv[index], argv[index + 1]});
        }
    }
    int count = static_cast<int>(ours.size());
    const QApplication application(count, ours.data());
    QApplication::setApplicationName(QStringLiteral("tonquil"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tonquil"));
    QApplication::setWindowIcon(programIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("tonquil"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // The panel may have the keyboard for hours, and a blinking cursor would wake it up twice a
    // second for all that time.
    QGuiApplication::styleHints()->setCursorFlashTime(0);
    const Language language(chosenLanguage(QLocale::system().uiLanguages(), translatedLanguages()));
    return runFirstOrHandOver(line->requests);
}

}  // namespace

}  // namespace tonquil

int main(int argc, char** argv) {
    return tonquil::start(argc, argv);
}
