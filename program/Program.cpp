// SPDX-License-Identifier: MIT
#include "program/Program.h"

#include <QApplication>
#include <QThread>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/folders/Folder.h"
#include "platform/missing/MissingHotKeyService.h"
#include "platform/missing/MissingKeyboardLayout.h"
#include "platform/missing/MissingWindowSystem.h"
#include "platform/posix/InstanceName.h"
#include "platform/posix/PosixLocalHost.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/posix/UdpSocket.h"
#include "platform/x11/desktop/X11WindowSystem.h"
#include "platform/x11/keys/X11HotKeyService.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "program/ProgramEnvironment.h"
#include "windows/panel/DevicePixels.h"

namespace tonquil {

namespace {

/// For saving at exit: the toolkit ends the process itself when the display server is gone, and
/// then destroys nothing.
TQController* controllerToSave = nullptr;

void saveAtExit() {
    if (controllerToSave != nullptr) {
        controllerToSave->applicationWillTerminate();
    }
}

// When a Wayland compositor is gone, the toolkit logs it and then ends the process without running
// exit handlers, so the log message is the only notice. It may come from a thread of the toolkit;
// what is saved belongs to the main thread.
void saveWhenWaylandIsLost(QtMsgType type, const QMessageLogContext& context,
                           const QString& message) {
    std::fputs(qPrintable(qFormatLogMessage(type, context, message) + QLatin1Char('\n')), stderr);
    if (!message.startsWith(QLatin1String("The Wayland connection"))) {
        return;
    }
    if (QThread::currentThread() == qApp->thread()) {
        saveAtExit();
    } else {
        QMetaObject::invokeMethod(qApp, saveAtExit, Qt::BlockingQueuedConnection);
    }
}

}  // namespace

Program::Program(Groundwork& groundwork, BusSessionEvents::Addresses buses)
    : _runLoop(groundwork.runLoop()),
      _screenEventLimit(_runLoop),
      _preferences(groundwork.preferences()),
      _recovery(groundwork.recovery()),
      _saveProblems(groundwork.saveProblems()),
      _displays(groundwork.displays()),
      _registry(groundwork.registry()),
      _installedPrograms(groundwork.installedPrograms()),
      _presetFolder(groundwork.folders().config() / "presets"),
      _whyNoDisplays(groundwork.whyNoDisplays()),
      _sessionBus(buses.session),
      _busEvents(_runLoop, std::move(buses), logLine),
      _desktopAppearance(_runLoop),
      _loginItem(groundwork.folders().config().parent_path() / "autostart", launcherFile()),
      _sessionWindows(groundwork.folders().state() / ("windows-" + instanceName() + ".plist")) {
    groundwork.setWhenDisplaysLost([this] { displaysLost(); });
    openWindowSystem();
    openKeyboard();
    makeWindows();
    _hotKeys = std::make_unique<DDHotKeyCenter>(*_hotKeyService, logLine);
    DDHotKeyCenter::setSharedHotKeyCenter(_hotKeys.get());
    makeController();
    showHotKeyAssignment();
    if (_portalHotKeys != nullptr) {
        _portalHotKeys->start(_sessionBus);
    }
}

void Program::makeWindows() {
    _panel = std::make_unique<ControlPanel>(*_windowSystem);
    _saveProblems.setShow([this](const auto& problem) { _panel->showStorageProblem(problem); });
    _dialogs = std::make_unique<PanelFileDialogs>(*_panel);
    _presence = std::make_unique<TrayPresence>(*_windowSystem, logLine);
    _presence->watch(*_panel);
    const auto windowMade = [this](QWidget& window) { _presence->watch(window); };
    _targets =
        std::make_unique<TargetPresenter>(_displays, _preferences, *_windowSystem, windowMade);
    _windows = std::make_unique<OtherWindows>(OtherWindows::Surroundings{
        .preferences = {.preferences = _preferences,
                        .loginItem = _loginItem,
                        .alerts = _alerts,
                        .layout = *_keyboardLayout,
                        .windowSystem = *_windowSystem,
                        .program = programFile(),
                        .home = environment("HOME"),
                        .log = logLine,
                        .canBeDisturbed = _displays.canBeDisturbed(),
                        .suspendsNightLight = _displays.suspendsNightLight(),
                        .changeHotKeys = [this] { _portalHotKeys->changeKeys(); }},
        .service = _displays,
        .panel = *_panel,
        .bundle = {.path = programFile(),
                   .name = "Tonquil",
                   .shortVersion = TONQUIL_VERSION,
                   .build = TONQUIL_VERSION,
                   .copyright = TONQUIL_COPYRIGHT},
        .windowMade = windowMade,
        .suspendHotKeys = [this](bool areSuspended) {
            if (_controller) {
                _controller->setHotKeysSuspended(areSuspended);
            }
        }});
}

// Nothing may call a part that is already destroyed.
Program::~Program() {
    controllerToSave = nullptr;
    _saveProblems.setShow(nullptr);
    _panel->hide();
    _controller.reset();
}

int Program::run(const std::vector<Request>& requests) {
    controllerToSave = _controller.get();
    std::atexit(saveAtExit);
    if (areWindowsPlacedByDesktop()) {
        qInstallMessageHandler(saveWhenWaylandIsLost);
    }
    QObject::connect(qApp, &QCoreApplication::aboutToQuit,
                     [this] { _controller->applicationWillTerminate(); });
    const auto signals = TerminationSignals::watch(_runLoop, [this](int) { _controller->quit(); });
    if (!signals) {
        report(signals.error());
    }
    _controller->applicationDidFinishLaunching();
    if (_isToEnd) {
        return EXIT_SUCCESS;
    }
    const SessionRestoration session(*_controller, sessionStorage());
    session.restore();
    _desktopAppearance.start(_sessionBus, [this](const DesktopAppearance::Settings& settings) {
        AccessibilityOptions options;
        options.increaseContrast = settings.increaseContrast;
        options.reduceMotion = settings.reduceMotion;
        _panel->setAccessibilityOptions(options);
        _windows->setAccessibilityOptions(options);
    });
    _runLoop.post([this, requests] {
        _isLaunched = true;
        // A request without arguments asks for the start itself.
        auto others = requests;
        std::erase(others, Request{});
        carryOut(others, *_controller);
        carryOut(std::exchange(_requestsBeforeLaunch, {}), *_controller);
    });
    return QCoreApplication::exec();
}

std::string Program::answer(const std::string& text) {
    const auto requests = requestsFromText(text);
    if (!requests) {
        return requests.error().sentence;
    }
    // An alert at startup may stay open for long; until it is answered there are neither defaults
    // nor curves.
    if (_isLaunched || wantsEnd(*requests)) {
        return carryOut(*requests, *_controller);
    }
    _requestsBeforeLaunch.insert(_requestsBeforeLaunch.end(), requests->begin(), requests->end());
    return {};
}

// Before the event loop runs it cannot be quit; the start may be waiting for an alert's answer.
void Program::end() {
    if (_isLaunched) {
        QCoreApplication::quit();
    } else {
        _isToEnd = true;
        _alerts.dismiss();
    }
}

void Program::makeController() {
    std::vector<SessionEvents*> events{&_busEvents};
    if (_desktopEvents) {
        events.push_back(_desktopEvents.get());
    }
    _controller = std::make_unique<TQController>(
        ControllerSurroundings{.service = _displays,
                               .registry = _registry,
                               .reconfigurations = _reconfigurations,
                               .preferences = _preferences,
                               .recovery = _recovery,
                               .runLoop = _runLoop,
                               .controls = *_panel,
                               .panel = *_panel,
                               .dialogs = *_dialogs,
                               .targets = *_targets,
                               .windows = *_windows,
                               .alerts = _alerts,
                               .presence = *_presence,
                               .windowSystem = *_windowSystem,
                               .programs = _installedPrograms,
                               .hotKeys = *_hotKeys,
                               .openServer = [this](Log log) { return openServer(std::move(log)); },
                               .sessionEvents = std::move(events),
                               .presetFolder = _presetFolder,
                               .whyNoDisplays = _whyNoDisplays,
                               .endProgram = [this] { end(); },
                               .log = logLine});
    _panel->setActions(*_controller);
    _presence->setActions(*_controller, [this] { _controller->showPanel(); });
    const bool hasSite = OtherWindows::hasAddress("TQWebSite");
    const bool hasBoardSite = OtherWindows::hasAddress("TQBoardWebSite");
    _panel->showWebSites(hasSite, hasBoardSite);
    _presence->showWebSites(hasSite, hasBoardSite);
}

Result<std::unique_ptr<TQPlayerServer>> Program::openServer(Log log) {
    return TQPlayerServer::init(
        {.runLoop = _runLoop,
         .openSocket = []() -> Result<std::unique_ptr<DatagramSocket>> {
             return UdpSocket::open().map(
                 [](auto socket) -> std::unique_ptr<DatagramSocket> { return socket; });
         },
         .host = std::make_shared<PosixLocalHost>(),
         .guid = _guid,
         .log = std::move(log)});
}

SessionRestoration::Storage Program::sessionStorage() {
    return {.load = [this] { return _sessionWindows.read().dictionary; },
            .store =
                [this](const PropertyValue& shown) {
                    const auto stored =
                        makeFolder(_sessionWindows.path().parent_path()).and_then([&] {
                            return _sessionWindows.write(shown);
                        });
                    if (!stored) {
                        report(stored.error());
                    }
                }};
}

// Qt notices as well, but ends the process without a chance to save anything.
void Program::displaysLost() {
    _controller->applicationWillTerminate();
    _runLoop.post([this] { end(); });
}

void Program::openWindowSystem() {
    _windowSystem = std::make_unique<MissingWindowSystem>(areWindowsPlacedByDesktop());
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return;
    }
    if (auto opened = X11WindowSystem::open(nullptr)) {
        _windowSystem = std::move(*opened);
    }
    auto events = X11DesktopEvents::open(nullptr, _runLoop, logLine,
                                         [this] { _controller->applicationWillTerminate(); });
    if (events) {
        _desktopEvents = std::move(*events);
        _desktopEvents->setCompositingChanged([this] { _panel->updateCompositing(); });
    }
    if (!_windowSystem->hasWindowManager()) {
        logLine("There is no window manager; the panel is moved without one.");
    }
}

void Program::openKeyboard() {
    _hotKeyService = std::make_unique<MissingHotKeyService>();
    _keyboardLayout = std::make_unique<MissingKeyboardLayout>();
    if (areWindowsPlacedByDesktop()) {
        _hotKeyService = makePortalHotKeys();
        return;
    }
    if (QGuiApplication::platformName() != QStringLiteral("xcb")) {
        return;
    }
    if (auto opened = X11HotKeyService::open(nullptr, _runLoop, logLine)) {
        _hotKeyService = std::move(*opened);
    } else {
        report(opened.error());
    }
    if (auto opened = XkbKeyboardLayout::open(nullptr)) {
        _keyboardLayout = std::move(*opened);
    } else {
        report(opened.error());
    }
}

std::unique_ptr<HotKeyService> Program::makePortalHotKeys() {
    const auto describe = [](const char* text) {
        return QCoreApplication::translate("Preferences", text).toStdString();
    };
    auto service = std::make_unique<PortalHotKeyService>(PortalHotKeyService::Surroundings{
        .runLoop = _runLoop,
        .descriptions = {{hotKeyAction(HotKeyRole::ToggleCorrection),
                          describe("Switch the correction on or off")},
                         {hotKeyAction(HotKeyRole::ShowPanel), describe("Show the panel")}},
        .changed = [this] { showHotKeyAssignment(); },
        .log = logLine});
    _portalHotKeys = service.get();
    return service;
}

void Program::showHotKeyAssignment() {
    HotKeyAssignment assignment;
    if (_portalHotKeys != nullptr) {
        assignment.chooser =
            _portalHotKeys->isOffered() ? HotKeyChooser::Desktop : HotKeyChooser::Nobody;
        for (const HotKeyRole role : {HotKeyRole::ToggleCorrection, HotKeyRole::ShowPanel}) {
            assignment.triggers[role] = _portalHotKeys->trigger(hotKeyAction(role));
        }
    }
    _windows->showHotKeyAssignment(std::move(assignment));
}

}  // namespace tonquil
