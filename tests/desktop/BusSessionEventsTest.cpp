// SPDX-License-Identifier: MIT
#include "platform/dbus/BusSessionEvents.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include "platform/dbus/BusAddresses.h"
#include "platform/dbus/DesktopAppearance.h"
#include "platform/qt/QtRunLoop.h"
#include "tests/desktop/PrivateBus.h"
#include "tests/desktop/QtSurroundings.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

QVariant object(const char* path) {
    return QVariant::fromValue(QDBusObjectPath(QLatin1String(path)));
}

class BusEvents : public testing::Test {
 protected:
    ~BusEvents() override { qunsetenv("XDG_SESSION_ID"); }

    /// Runs the bus's and the test's own events, without advancing the clock.
    [[nodiscard]] bool until(const std::function<bool()>& condition) {
        return processUntil([&] {
            loop.advance(0ms);
            loop.pollReadable(0ms);
            return condition();
        });
    }
    /// Starts, and waits until every watch that needs no reply is set up.
    void start() {
        bus.start(tell);
        ASSERT_TRUE(until([this] { return !log.empty(); }));
        ASSERT_TRUE(until([this] {
            session.takeAndLeave("org.example.Probe");
            loop.advance(BusSessionEvents::coalescingTime);
            return !told.empty();
        }));
        markSession();
        loop.advance(BusSessionEvents::coalescingTime);
        told.clear();
    }
    void await(SessionEvent event) {
        EXPECT_TRUE(until([&] { return std::erase(told, event) != 0; }));
    }
    /// Waits until everything sent on the session bus has arrived, using a final marker event.
    void markSession() {
        screenSaver("org.freedesktop.ScreenSaver", false);
        await(SessionEvent::ScreenSaverStopped);
    }
    /// The same for the system bus.
    void markSystem(const char* signal = "DeviceAdded") {
        system.emitSignal("/org/freedesktop/ColorManager", "org.freedesktop.ColorManager", signal,
                          {object("/a")});
        EXPECT_TRUE(until([this] {
            loop.advance(BusSessionEvents::coalescingTime);
            return std::erase(told, SessionEvent::ColourSpaceChanged) != 0;
        }));
    }
    void sleep(bool isFallingAsleep) {
        system.emitSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                          "PrepareForSleep", {isFallingAsleep});
    }
    void screenSaver(const char* interface, bool isActive) {
        session.emitSignal("/ScreenSaver", interface, "ActiveChanged", {isActive});
    }
    void sessionActive(const char* path, bool isActive) {
        system.emitSignal(path, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                          {QStringLiteral("org.freedesktop.login1.Session"),
                           QVariantMap{{QStringLiteral("Active"), isActive}}, QStringList()});
    }

    PrivateBus system{"DBUS_SYSTEM_BUS_ADDRESS"};
    PrivateBus session{"DBUS_SESSION_BUS_ADDRESS"};
    ManualRunLoop loop;
    std::vector<std::string> log;
    std::vector<SessionEvent> told;
    std::function<void(SessionEvent)> tell = [this](auto event) { told.push_back(event); };
    BusSessionEvents bus{loop,
                         {systemBusAddress(), sessionBusAddress()},
                         [this](std::string_view line) { log.emplace_back(line); }};
};

TEST_F(BusEvents, ReportsWakingThreeTimesUnlessSuspendedAgain) {
    start();
    sleep(true);
    sleep(false);
    EXPECT_TRUE(until([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(SessionEvent::Woke));
    for (const auto& [time, count] : {std::pair(999ms, 1U), {1ms, 2U}, {3999ms, 2U}, {1ms, 3U}}) {
        loop.advance(time);
        EXPECT_EQ(told.size(), count);
    }
    sleep(false);
    EXPECT_TRUE(until([&] { return told.size() == 4; }));
    sleep(true);
    markSystem();
    const auto count = told.size();
    loop.advance(1min);
    EXPECT_EQ(told.size(), count);
}

TEST_F(BusEvents, ReceivesScreenSaverAndColourSignalsOfAllDesktops) {
    start();
    for (const auto* interface :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
          "org.mate.ScreenSaver", "org.xfce.ScreenSaver"}) {
        SCOPED_TRACE(interface);
        screenSaver(interface, true);
        screenSaver(interface, false);
        await(SessionEvent::ScreenSaverStopped);
        EXPECT_THAT(told, ElementsAre());
    }
    for (const auto* signal : {"DeviceAdded", "DeviceChanged", "DeviceRemoved", "ProfileAdded",
                               "ProfileChanged", "ProfileRemoved"}) {
        SCOPED_TRACE(signal);
        markSystem(signal);
    }
}

TEST_F(BusEvents, ReportsSessionSwitchHoweverSessionIsFound) {
    constexpr const char* path = "/org/freedesktop/login1/session/_37";
    const auto ifAskedFor = [](const QVariant& which) -> PrivateBus::Answer {
        return [which](const QVariantList& arguments) {
            return arguments.value(0) == which ? object(path) : QVariant();
        };
    };
    const auto byID = ifAskedFor(QStringLiteral("7"));
    const auto byProcess = ifAskedFor(static_cast<uint>(QCoreApplication::applicationPid()));
    const PrivateBus::Answer byDesktop = [](const QVariantList&) {
        return QVariant::fromValue(QDBusVariant(QStringLiteral("7")));
    };
    const std::vector<std::pair<const char*, PrivateBus::Methods>> rows{
        {"7", {{"GetSession", byID}}},
        {"stale", {{"GetSession", byID}, {"GetSessionByPID", byProcess}}},
        {"", {{"GetSession", byID}, {"Get", byDesktop}}}};
    for (const auto& [environment, methods] : rows) {
        SCOPED_TRACE(environment);
        qputenv("XDG_SESSION_ID", environment);
        system.serve("org.freedesktop.login1", "/org/freedesktop/login1", methods);
        BusSessionEvents events(loop, {systemBusAddress(), {}}, {});
        events.start(tell);
        EXPECT_TRUE(until([&] {
            sessionActive(path, true);
            return !told.empty();
        }));
        markSystem();
        loop.advance(1min);
        told.clear();
        sessionActive("/org/freedesktop/login1/session/_38", true);
        sessionActive(path, false);
        sessionActive(path, true);
        markSystem();
        loop.advance(1s);
        EXPECT_THAT(told, ElementsAre(SessionEvent::SessionBecameActive,
                                      SessionEvent::SessionBecameActive));
        told.clear();
    }
}

TEST_F(BusEvents, ReportsNamesLostTogetherOnceAndLogsMissingServices) {
    start();
    EXPECT_THAT(log, ElementsAre(HasSubstr("colour management"), HasSubstr("login service")));
    log.clear();
    session.serve("org.example.New", "/new", {});
    markSession();
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre()) << "a name that appears is none that leaves";
    session.takeAndLeave("org.example.One");
    session.takeAndLeave("org.example.Two");
    markSession();
    loop.advance(BusSessionEvents::coalescingTime - 1ms);
    EXPECT_THAT(told, ElementsAre());
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre(SessionEvent::ApplicationTerminated));
    system.send(SIGKILL);
    session.send(SIGKILL);
    EXPECT_TRUE(until([&] { return log.size() >= 2; }));
    EXPECT_THAT(log, testing::UnorderedElementsAre(HasSubstr("system bus has gone"),
                                                   HasSubstr("session bus has gone")));
}

TEST_F(BusEvents, KeepsReceivingWhileOtherBusHangs) {
    system.send(SIGSTOP);
    bus.start(tell);
    EXPECT_TRUE(until([&] {
        screenSaver("org.freedesktop.ScreenSaver", false);
        return !told.empty();
    }));
    EXPECT_THAT(log, ElementsAre());
    loop.advance(BusConnection::connectingTime);
    EXPECT_THAT(log, ElementsAre(HasSubstr("system bus cannot be reached")));
}

using Settings = DesktopAppearance::Settings;
using Groups = QMap<QString, QVariantMap>;

TEST(DesktopAppearances, ReportsEachPortalChangeOnce) {
    PrivateBus session("DBUS_SESSION_BUS_ADDRESS");
    qDBusRegisterMetaType<Groups>();
    const Groups groups{
        {QStringLiteral("org.freedesktop.appearance"), {{QStringLiteral("contrast"), 1U}}},
        {QStringLiteral("org.gnome.desktop.interface"),
         {{QStringLiteral("enable-animations"), false}, {QStringLiteral("contrast"), 0U}}},
        {QStringLiteral("org.gnome.other"), {{QStringLiteral("enable-animations"), true}}}};
    session.serve("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                  {{"ReadAll", [&](const QVariantList&) { return QVariant::fromValue(groups); }}});
    const auto change = [&](const char* group, const char* key, const QVariant& value) {
        session.emitSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
            {QLatin1String(group), QLatin1String(key), QVariant::fromValue(QDBusVariant(value))});
    };
    std::vector<Settings> told;
    QtRunLoop loop;
    DesktopAppearance appearance(loop);
    appearance.start(sessionBusAddress(),
                     [&](const Settings& settings) { told.push_back(settings); });
    EXPECT_TRUE(processUntil([&] { return !told.empty(); }));
    change("org.freedesktop.appearance", "contrast", 1U);
    change("org.freedesktop.appearance", "contrast", 0U);
    change("org.gnome.desktop.interface", "enable-animations", true);
    EXPECT_TRUE(processUntil([&] { return told.size() >= 3; }));
    EXPECT_EQ(told, (std::vector<Settings>{{true, true}, {false, true}, {false, false}}));
}

}  // namespace
}  // namespace tonquil
