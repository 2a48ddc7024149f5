// SPDX-License-Identifier: MIT
#include "platform/dbus/BusSessionEvents.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <string>
#include <utility>

namespace tonquil {

namespace {

using namespace std::chrono_literals;
using Arguments = BusConnection::Arguments;

constexpr QLatin1String loginService("org.freedesktop.login1");
constexpr QLatin1String loginManager("org.freedesktop.login1.Manager");
constexpr QLatin1String loginSession("org.freedesktop.login1.Session");
constexpr QLatin1String colourManager("org.freedesktop.ColorManager");
constexpr QLatin1String busProperties("org.freedesktop.DBus.Properties");

QDBusMessage busQuestion(const QString& method) {
    const auto bus = QStringLiteral("org.freedesktop.DBus");
    return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                          method);
}

bool isBool(const Arguments& arguments, bool value) {
    return !arguments.isEmpty() && arguments[0].typeId() == QMetaType::Bool &&
           arguments[0].toBool() == value;
}

}  // namespace

BusSessionEvents::BusSessionEvents(RunLoop& runLoop, Log log)
    : _runLoop(runLoop),
      _log(std::move(log)),
      _system(BusConnection::Bus::System, _log),
      _session(BusConnection::Bus::Session, _log) {}

void BusSessionEvents::start(Handler handler) {
    _handler = std::move(handler);
    _system.open([this] { watchSystemBus(); });
    _session.open([this] { watchSessionBus(); });
}

void BusSessionEvents::watchSystemBus() {
    _system.watch({loginManager, QStringLiteral("PrepareForSleep")},
                  [this](const Arguments& arguments) { sleepChanged(arguments); });
    for (const auto& name : {QStringLiteral("DeviceAdded"), QStringLiteral("DeviceChanged"),
                             QStringLiteral("DeviceRemoved"), QStringLiteral("ProfileAdded"),
                             QStringLiteral("ProfileChanged"), QStringLiteral("ProfileRemoved")}) {
        _system.watch({colourManager, name}, [this](const Arguments&) {
            tellSoon(_colours, SessionEvent::ColourSpaceChanged);
        });
    }
    // A service that is not running may still be one that the bus can start.
    _system.ask(busQuestion(QStringLiteral("ListNames")), [this](const Arguments& running) {
        _system.ask(
            busQuestion(QStringLiteral("ListActivatableNames")),
            [this, running](const Arguments& startable) {
                findServices(running.value(0).toStringList() + startable.value(0).toStringList());
            });
    });
}

void BusSessionEvents::watchSessionBus() {
    for (const auto& interface :
         {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
          QStringLiteral("org.cinnamon.ScreenSaver"), QStringLiteral("org.mate.ScreenSaver"),
          QStringLiteral("org.xfce.ScreenSaver")}) {
        _session.watch({interface, QStringLiteral("ActiveChanged")},
                       [this](const Arguments& arguments) {
                           if (isBool(arguments, false)) {
                               _handler(SessionEvent::ScreenSaverStopped);
                           }
                       });
    }
    // The third argument is the new owner: the bus itself holds back what only moves or appears.
    _session.watch({QStringLiteral("org.freedesktop.DBus"),
                    QStringLiteral("NameOwnerChanged"),
                    {},
                    {QString(), QString(), QStringLiteral("")}},
                   [this](const Arguments& arguments) {
                       if (!arguments.value(0).toString().startsWith(QLatin1Char(':'))) {
                           tellSoon(_terminated, SessionEvent::ApplicationTerminated);
                       }
                   });
}

void BusSessionEvents::findServices(const QStringList& names) {
    if (!names.contains(colourManager)) {
        report("There is no colour management service, so a change of profiles is not noticed.");
    }
    if (names.contains(loginService)) {
        findSession();
    } else {
        report("There is no login service, so waking from sleep is not noticed.");
    }
}

void BusSessionEvents::findSession() {
    const auto none = [this] {
        report(
            "The login service knows no session of this program, so a switch to it is not "
            "noticed.");
    };
    const auto byDesktop = [this, none] {
        auto question = QDBusMessage::createMethodCall(
            loginService, QStringLiteral("/org/freedesktop/login1/session/auto"), busProperties,
            QStringLiteral("Get"));
        question << loginSession << QStringLiteral("Id");
        // This object stands for the session, but its signals come from the session's own.
        _system.ask(
            question,
            [this, none](const Arguments& id) {
                askForSession(QStringLiteral("GetSession"),
                              id.value(0).value<QDBusVariant>().variant(), none);
            },
            none);
    };
    const auto byProcess = [this, byDesktop] {
        askForSession(QStringLiteral("GetSessionByPID"),
                      static_cast<uint>(QCoreApplication::applicationPid()), byDesktop);
    };
    const QString id = qEnvironmentVariable("XDG_SESSION_ID");
    if (id.isEmpty()) {
        byProcess();
    } else {
        askForSession(QStringLiteral("GetSession"), id, byProcess);
    }
}

void BusSessionEvents::askForSession(const QString& method, const QVariant& key,
                                     const std::function<void()>& failed) {
    auto question = QDBusMessage::createMethodCall(
        loginService, QStringLiteral("/org/freedesktop/login1"), loginManager, method);
    question << key;
    _system.ask(
        question,
        [this](const Arguments& session) {
            _system.watch({busProperties, QStringLiteral("PropertiesChanged"),
                           session.value(0).value<QDBusObjectPath>().path()},
                          [this](const Arguments& arguments) { sessionChanged(arguments); });
        },
        failed);
}

void BusSessionEvents::sleepChanged(const Arguments& arguments) {
    if (isBool(arguments, true)) {
        _wakes = {};
    } else if (isBool(arguments, false)) {
        // Displays come up one after the other.
        _wakes = {tellAfter(1s, SessionEvent::Woke), tellAfter(5s, SessionEvent::Woke)};
        _handler(SessionEvent::Woke);
    }
}

void BusSessionEvents::sessionChanged(const Arguments& arguments) {
    const auto changed = qdbus_cast<QVariantMap>(arguments.value(1));
    if (arguments.value(0).toString() == loginSession &&
        changed.value(QStringLiteral("Active")).toBool()) {
        _active = tellAfter(1s, SessionEvent::SessionBecameActive);
        _handler(SessionEvent::SessionBecameActive);
    }
}

void BusSessionEvents::tellSoon(Timer& timer, SessionEvent event) {
    if (!timer) {
        timer = _runLoop.callOnce(coalescingTime, [this, &timer, event] {
            timer.reset();
            _handler(event);
        });
    }
}

BusSessionEvents::Timer BusSessionEvents::tellAfter(std::chrono::milliseconds delay,
                                                    SessionEvent event) {
    return _runLoop.callOnce(delay, [this, event] { _handler(event); });
}

void BusSessionEvents::report(const std::string& line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
