// SPDX-License-Identifier: MIT
// Puts the program together: the only file that knows which platform is used.
#include <QApplication>
#include <QStyleHints>
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "app/Requests.h"
#include "app/TQController.h"
#include "app/alerts/ModalAlerts.h"
#include "app/desktop/OtherWindows.h"
#include "app/desktop/SessionRestoration.h"
#include "app/desktop/TrayPresence.h"
#include "app/panel/ControlPanel.h"
#include "app/panel/PanelFileDialogs.h"
#include "app/panel/PanelIcons.h"
#include "app/panel/QuietStyle.h"
#include "app/targets/TargetPresenter.h"
#include "platform/choice/DisplayServiceChoice.h"
#include "platform/dbus/BusSessionEvents.h"
#include "platform/dbus/DesktopAppearance.h"
#include "platform/missing/MissingDisplayService.h"
#include "platform/missing/MissingHotKeyService.h"
#include "platform/missing/MissingKeyboardLayout.h"
#include "platform/missing/MissingWindowSystem.h"
#include "platform/posix/InstanceSocket.h"
#include "platform/posix/PosixLocalHost.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/posix/UdpSocket.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/x11/X11DesktopEvents.h"
#include "platform/x11/X11HotKeyService.h"
#include "platform/x11/X11WindowSystem.h"
#include "platform/x11/XcbReply.h"
#include "platform/xdg/AutostartLoginItem.h"
#include "platform/xdg/CurveRecoveryFile.h"
#include "platform/xdg/DesktopEntries.h"
#include "platform/xdg/Folder.h"
#include "platform/xdg/PropertyListFile.h"
#include "platform/xdg/PropertyListPreferences.h"
#include "platform/xdg/XdgFolders.h"
#include "platform/xkb/XkbKeyboardLayout.h"

namespace tonquil {

namespace {

void log(std::string_view line) {
    std::fprintf(stderr, "tonquil: %.*s\n", static_cast<int>(line.size()), line.data());
}

void report(const Problem& problem) {
    log(problem.sentence);
    if (!problem.detail.empty()) {
        log(problem.detail);
    }
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

/// The window toolkit aborts where it finds no display server, and says nothing of use.
bool hasDesktop() {
    if (!environment("QT_QPA_PLATFORM").empty()) {
        return true;
    }
    const std::unique_ptr<xcb_connection_t, DisconnectXcb> connection(
        xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) == 0) {
        return true;
    }
    if (!environment("WAYLAND_DISPLAY").empty()) {
        log("This is a Wayland session, whose displays cannot be corrected yet.");
        return false;
    }
    std::string line = "There is no desktop here: no X server answers on \"";
    line += environment("DISPLAY");
    line += "\".";
    log(line);
    return false;
}

/// One instance runs for each desktop of a person.
std::string instanceName() {
    std::string name = "instance-";
    std::string display = environment("DISPLAY");
    // The screen behind the point is another face of the same display.
    display.erase(std::min(display.find('.', display.rfind(':')), display.size()));
    for (const char c : display.empty() ? environment("WAYLAND_DISPLAY") : display) {
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    }
    return name;
}

/// The program's own file.
std::filesystem::path programFile() {
    std::error_code unknown;
    return std::filesystem::read_symlink("/proc/self/exe", unknown);
}

/// What the toolkit's exit must still save: it ends the process itself when the display server
/// goes, and then destroys nothing.
TQController* controllerToSave = nullptr;

void saveAtExit() {
    if (controllerToSave != nullptr) {
        controllerToSave->applicationWillTerminate();
    }
}

/// Everything that the program is made of, each part before those that need it.
class Program {
 public:
    explicit Program(const XdgFolders& folders)
        : preferences(folders.config() / "preferences.plist", runLoop, log),
          recovery(folders.state() / ("recovery-" + instanceName() + ".plist"), log),
          busEvents(runLoop, log),
          loginItem(folders.config().parent_path() / "autostart",
                    programFile().parent_path() / "tonquil-launcher"),
          sessionWindows(folders.state() / ("windows-" + instanceName() + ".plist")) {
        openDisplays();
        openWindowSystem();
        panel = std::make_unique<ControlPanel>(*windowSystem);
        dialogs = std::make_unique<PanelFileDialogs>(*panel);
        presence = std::make_unique<TrayPresence>(*windowSystem, log);
        presence->watch(*panel);
        const auto windowMade = [this](QWidget& window) { presence->watch(window); };
        targets = std::make_unique<TargetPresenter>(*displays, preferences, windowMade);
        windows = std::make_unique<OtherWindows>(
            OtherWindows::Surroundings{.preferences = {.preferences = preferences,
                                                       .loginItem = loginItem,
                                                       .alerts = alerts,
                                                       .layout = *keyboardLayout,
                                                       .program = programFile(),
                                                       .home = environment("HOME"),
                                                       .log = log},
                                       .service = *displays,
                                       .bundle = {.path = programFile(),
                                                  .name = "Tonquil",
                                                  .shortVersion = TONQUIL_VERSION,
                                                  .build = TONQUIL_VERSION,
                                                  .copyright = TONQUIL_COPYRIGHT},
                                       .windowMade = windowMade,
                                       .suspendHotKeys = [this](bool areSuspended) {
                                           controller->setHotKeysSuspended(areSuspended);
                                       }});
        registry = std::make_unique<ScreenRegistry>(*displays);
        hotKeys = std::make_unique<DDHotKeyCenter>(*hotKeyService, log);
        DDHotKeyCenter::setSharedHotKeyCenter(hotKeys.get());
        makeController();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    /// The panel must not call what goes before it.
    ~Program() {
        controllerToSave = nullptr;
        panel->hide();
    }

    int run(const std::vector<Request>& requests) {
        controllerToSave = controller.get();
        std::atexit(saveAtExit);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit,
                         [this] { controller->applicationWillTerminate(); });
        const auto signals =
            TerminationSignals::watch(runLoop, [this](int) { controller->quit(); });
        if (!signals) {
            report(signals.error());
        }
        controller->applicationDidFinishLaunching();
        if (controller->hasTerminated()) {
            return EXIT_SUCCESS;
        }
        const SessionRestoration session(*controller, sessionStorage());
        session.restore();
        desktopAppearance.start([this](const DesktopAppearance::Settings& settings) {
            AccessibilityOptions options;
            options.increaseContrast = settings.increaseContrast;
            options.reduceMotion = settings.reduceMotion;
            panel->setAccessibilityOptions(options);
            windows->setAccessibilityOptions(options);
        });
        // The start itself is what is asked of a program that was not running.
        carryOutButReopen(requests);
        return QCoreApplication::exec();
    }

    std::string answer(const std::string& text) {
        const auto requests = requestsFromText(text);
        if (!requests) {
            return requests.error().sentence;
        }
        carryOut(*requests, *controller);
        return {};
    }

 private:
    void makeController() {
        std::vector<SessionEvents*> events{&busEvents};
        if (desktopEvents) {
            events.push_back(desktopEvents.get());
        }
        controller = std::make_unique<TQController>(
            ControllerSurroundings{.service = *displays,
                                   .registry = *registry,
                                   .reconfigurations = reconfigurations,
                                   .preferences = preferences,
                                   .recovery = recovery,
                                   .runLoop = runLoop,
                                   .controls = *panel,
                                   .panel = *panel,
                                   .dialogs = *dialogs,
                                   .targets = *targets,
                                   .windows = *windows,
                                   .alerts = alerts,
                                   .presence = *presence,
                                   .windowSystem = *windowSystem,
                                   .programs = installedPrograms,
                                   .hotKeys = *hotKeys,
                                   .openServer = [this] { return openServer(); },
                                   .sessionEvents = std::move(events),
                                   .whyNoDisplays = whyNoDisplays,
                                   .endProgram = &QCoreApplication::quit,
                                   .log = log});
        panel->setActions(*controller);
        presence->setActions(*controller, [this] { controller->showPanel(); });
        const bool hasSite = OtherWindows::hasAddress("TQWebSite");
        const bool hasBoardSite = OtherWindows::hasAddress("TQBoardWebSite");
        panel->showWebSites(hasSite, hasBoardSite);
        presence->showWebSites(hasSite, hasBoardSite);
    }

    std::unique_ptr<TQPlayerServer> openServer() {
        auto server = TQPlayerServer::init(
            {.runLoop = runLoop,
             .openSocket = []() -> Result<std::unique_ptr<DatagramSocket>> {
                 return UdpSocket::open().map(
                     [](auto socket) -> std::unique_ptr<DatagramSocket> { return socket; });
             },
             .host = std::make_shared<PosixLocalHost>(),
             .guid = guid,
             .log = log});
        return server ? std::move(*server) : nullptr;
    }

    SessionRestoration::Storage sessionStorage() {
        return {.load = [this] { return sessionWindows.read().dictionary; },
                .store =
                    [this](const PropertyValue& shown) {
                        const auto stored =
                            makeFolder(sessionWindows.path().parent_path()).and_then([&] {
                                return sessionWindows.write(shown);
                            });
                        if (!stored) {
                            report(stored.error());
                        }
                    }};
    }

    void openDisplays() {
        auto opened = chooseDisplayService(&runLoop, log);
        if (opened) {
            displays = std::move(*opened);
            return;
        }
        report(opened.error());
        whyNoDisplays = opened.error().sentence;
        displays = std::make_unique<MissingDisplayService>();
    }

    void openWindowSystem() {
        windowSystem = std::make_unique<MissingWindowSystem>();
        hotKeyService = std::make_unique<MissingHotKeyService>();
        keyboardLayout = std::make_unique<MissingKeyboardLayout>();
        if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
            return;
        }
        if (auto opened = X11WindowSystem::open(nullptr)) {
            windowSystem = std::move(*opened);
        }
        if (auto opened = X11HotKeyService::open(nullptr, runLoop, log)) {
            hotKeyService = std::move(*opened);
        } else {
            report(opened.error());
        }
        if (auto opened = XkbKeyboardLayout::open(nullptr)) {
            keyboardLayout = std::move(*opened);
        } else {
            report(opened.error());
        }
        auto events = X11DesktopEvents::open(nullptr, runLoop, log,
                                             [this] { controller->applicationWillTerminate(); });
        if (events) {
            desktopEvents = std::move(*events);
        }
        if (!windowSystem->hasWindowManager()) {
            log("There is no window manager; the panel is moved without one.");
        }
    }

    void carryOutButReopen(std::vector<Request> requests) {
        std::erase(requests, Request{});
        carryOut(requests, *controller);
    }

    QtRunLoop runLoop;
    PropertyListPreferences preferences;
    CurveRecoveryFile recovery;
    BusSessionEvents busEvents;
    DesktopAppearance desktopAppearance;
    AutostartLoginItem loginItem;
    PropertyListFile sessionWindows;
    DesktopEntries installedPrograms{DesktopEntries::fromEnvironment()};
    MachineGuid guid;
    ModalAlerts alerts{[this] { return panel ? effectiveAppearance(*panel) : Appearance{}; }};
    std::unique_ptr<DisplayService> displays;
    std::string whyNoDisplays;
    std::unique_ptr<WindowSystem> windowSystem;
    std::unique_ptr<HotKeyService> hotKeyService;
    std::unique_ptr<KeyboardLayout> keyboardLayout;
    std::unique_ptr<X11DesktopEvents> desktopEvents;
    std::unique_ptr<ScreenRegistry> registry;
    ReconfigurationCounter reconfigurations;
    std::unique_ptr<ControlPanel> panel;
    std::unique_ptr<PanelFileDialogs> dialogs;
    std::unique_ptr<TrayPresence> presence;
    std::unique_ptr<TargetPresenter> targets;
    std::unique_ptr<OtherWindows> windows;
    std::unique_ptr<DDHotKeyCenter> hotKeys;
    std::unique_ptr<TQController> controller;
};

int handOver(const std::filesystem::path& socket, const std::vector<Request>& requests) {
    const auto answer = InstanceSocket::handOver(socket, textFromRequests(requests));
    if (!answer) {
        report(answer.error());
        return EXIT_FAILURE;
    }
    if (!answer->empty()) {
        log(*answer);
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
        log);
    if (!listener) {
        report(listener.error());
        return EXIT_FAILURE;
    }
    if (*listener == nullptr) {
        return handOver(socket, requests);
    }
    if (std::ranges::find(requests, Request{.kind = Request::Kind::Quit}) != requests.end()) {
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
    if (!hasDesktop()) {
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
    return runFirstOrHandOver(line->requests);
}

}  // namespace

}  // namespace tonquil

int main(int argc, char** argv) {
    return tonquil::start(argc, argv);
}
