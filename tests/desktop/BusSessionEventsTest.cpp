// SPDX-License-Identifier: MIT
#include "platform/dbus/BusSessionEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "platform/dbus/DesktopAppearance.h"
#include "tests/desktop/PrivateBus.h"
#include "tests/desktop/QtSurroundings.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

class BusEvents : public testing::Test {
 protected:
    ~BusEvents() override { qunsetenv("XDG_SESSION_ID"); }

    /// Starts, and waits until everything is watched whose watching waits for no answer.
    void start() {
        bus.start([this](SessionEvent event) { told.push_back(event); });
        ASSERT_TRUE(processUntil([this] { return !log.empty(); }));
        ASSERT_TRUE(processUntil([this] {
            session->takeAndLeave("org.example.Probe");
            loop.advance(BusSessionEvents::coalescingTime);
            return !told.empty();
        }));
        markSession();
        loop.advance(BusSessionEvents::coalescingTime);
        told.clear();
    }
    [[nodiscard]] bool isTold(SessionEvent event) const {
        return std::find(told.begin(), told.end(), event) != told.end();
    }
    /// Waits until everything sent on the session bus has come, which a last event shows.
    void markSession() {
        screenSaver("org.freedesktop.ScreenSaver", false);
        EXPECT_TRUE(processUntil([this] { return isTold(SessionEvent::ScreenSaverStopped); }));
        std::erase(told, SessionEvent::ScreenSaverStopped);
    }
    /// The same for the system bus.
    void markSystem() {
        colours("DeviceAdded");
        awaitColours();
    }
    void awaitColours() {
        EXPECT_TRUE(processUntil([this] {
            loop.advance(BusSessionEvents::coalescingTime);
            return isTold(SessionEvent::ColourSpaceChanged);
        }));
        std::erase(told, SessionEvent::ColourSpaceChanged);
    }
    void sleep(bool isFallingAsleep) {
        system->emitSignal("/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                           "PrepareForSleep", {isFallingAsleep});
    }
    void colours(const char* signal) {
        system->emitSignal("/org/freedesktop/ColorManager", "org.freedesktop.ColorManager", signal,
                           {QVariant::fromValue(QDBusObjectPath(QStringLiteral("/a")))});
    }
    void screenSaver(const char* interface, bool isActive) {
        session->emitSignal("/ScreenSaver", interface, "ActiveChanged", {isActive});
    }
    void sessionActive(const char* path, bool isActive) {
        system->emitSignal(path, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                           {QStringLiteral("org.freedesktop.login1.Session"),
                            QVariantMap{{QStringLiteral("Active"), isActive}}, QStringList()});
    }

    std::optional<PrivateBus> system{std::in_place, "DBUS_SYSTEM_BUS_ADDRESS"};
    std::optional<PrivateBus> session{std::in_place, "DBUS_SESSION_BUS_ADDRESS"};
    ManualRunLoop loop;
    std::vector<std::string> log;
    std::vector<SessionEvent> told;
    BusSessionEvents bus{loop, [this](std::string_view line) { log.emplace_back(line); }};
};

TEST_F(BusEvents, WakingIsToldThreeTimesUnlessTheMachineSleepsAgain) {
    start();
    sleep(true);
    sleep(false);
    EXPECT_TRUE(processUntil([&] { return !told.empty(); }));
    EXPECT_THAT(told, ElementsAre(SessionEvent::Woke));
    for (const auto& [time, count] : {std::pair(999ms, 1U), {1ms, 2U}, {3999ms, 2U}, {1ms, 3U}}) {
        loop.advance(time);
        EXPECT_EQ(told.size(), count);
    }
    sleep(false);
    EXPECT_TRUE(processUntil([&] { return told.size() == 4; }));
    sleep(true);
    markSystem();
    const auto count = told.size();
    loop.advance(1min);
    EXPECT_EQ(told.size(), count);
}

TEST_F(BusEvents, EveryDesktopsScreenSaverAndEverySignalOfTheColourServiceIsTold) {
    start();
    for (const auto* interface :
         {"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
          "org.mate.ScreenSaver", "org.xfce.ScreenSaver"}) {
        SCOPED_TRACE(interface);
        screenSaver(interface, true);
        screenSaver(interface, false);
        EXPECT_TRUE(processUntil([&] { return !told.empty(); }));
        EXPECT_THAT(told, ElementsAre(SessionEvent::ScreenSaverStopped));
        told.clear();
    }
    for (const auto* signal : {"DeviceAdded", "DeviceChanged", "DeviceRemoved", "ProfileAdded",
                               "ProfileChanged", "ProfileRemoved"}) {
        colours(signal);
        awaitColours();
    }
}

TEST_F(BusEvents, ASwitchToThisSessionIsToldHoweverTheSessionIsFound) {
    constexpr const char* path = "/org/freedesktop/login1/session/_37";
    const auto object = [](const char* at) {
        return QVariant::fromValue(QDBusObjectPath(QLatin1String(at)));
    };
    const PrivateBus::Answer byID = [&](const QVariantList& arguments) {
        return arguments.value(0) == QStringLiteral("7") ? object(path) : QVariant();
    };
    const PrivateBus::Answer byProcess = [&](const QVariantList& arguments) {
        const bool isOurs = arguments.value(0).toLongLong() == QCoreApplication::applicationPid();
        return isOurs ? object(path) : QVariant();
    };
    const PrivateBus::Answer byDesktop = [](const QVariantList&) {
        return QVariant::fromValue(QDBusVariant(QStringLiteral("7")));
    };
    const auto getSession = QStringLiteral("GetSession");
    const auto getByProcess = QStringLiteral("GetSessionByPID");
    struct Row {
        const char* environment;
        std::map<QString, PrivateBus::Answer> methods;
    };
    const std::vector<Row> rows{{"7", {{getSession, byID}}},
                                {"stale", {{getSession, byID}, {getByProcess, byProcess}}},
                                {"", {{getSession, byID}, {QStringLiteral("Get"), byDesktop}}}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.environment);
        qputenv("XDG_SESSION_ID", row.environment);
        system->serve("org.freedesktop.login1", "/org/freedesktop/login1", row.methods);
        BusSessionEvents events(loop, {});
        told.clear();
        events.start([this](SessionEvent event) { told.push_back(event); });
        EXPECT_TRUE(processUntil([&] {
            sessionActive(path, true);
            return !told.empty();
        }));
        markSystem();
        loop.advance(1min);
        told.clear();
        sessionActive("/org/freedesktop/login1/session/_38", true);
        sessionActive(path, false);
        sessionActive(path, true);
        EXPECT_TRUE(processUntil([&] { return !told.empty(); }));
        loop.advance(1s);
        EXPECT_THAT(told, ElementsAre(SessionEvent::SessionBecameActive,
                                      SessionEvent::SessionBecameActive));
    }
}

TEST_F(BusEvents, NamesThatLeaveAreOneEventAndMissingServicesAndBusesOneLineEach) {
    start();
    EXPECT_THAT(log, ElementsAre(HasSubstr("colour management"), HasSubstr("login service")));
    log.clear();
    // A name appears; two leave within a moment.
    session->serve("org.example.New", "/new", {});
    markSession();
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre());
    session->takeAndLeave("org.example.One");
    session->takeAndLeave("org.example.Two");
    markSession();
    loop.advance(BusSessionEvents::coalescingTime - 1ms);
    EXPECT_THAT(told, ElementsAre());
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre(SessionEvent::ApplicationTerminated));
    system->kill();
    session->kill();
    EXPECT_TRUE(processUntil([&] { return log.size() >= 2; }));
    processFor(50ms);
    EXPECT_THAT(log, testing::UnorderedElementsAre(HasSubstr("system bus has gone"),
                                                   HasSubstr("session bus has gone")));
}

TEST_F(BusEvents, ABusThatHangsHoldsNothingUp) {
    system->suspend();
    bus.start([this](SessionEvent event) { told.push_back(event); });
    EXPECT_TRUE(processUntil([&] {
        screenSaver("org.freedesktop.ScreenSaver", false);
        return !told.empty();
    })) << "the other bus is heard";
    EXPECT_THAT(log, ElementsAre());
    system->kill();
    EXPECT_TRUE(processUntil([&] { return !log.empty(); }));
    EXPECT_THAT(log, ElementsAre(HasSubstr("system bus cannot be reached")));
}

using Settings = DesktopAppearance::Settings;
using Groups = QMap<QString, QVariantMap>;

TEST(DesktopAppearances, WhatThePortalSaysIsToldOnceAndFollowed) {
    PrivateBus session("DBUS_SESSION_BUS_ADDRESS");
    qDBusRegisterMetaType<Groups>();
    const Groups groups{
        {QStringLiteral("org.freedesktop.appearance"),
         {{QStringLiteral("contrast"), 1U}, {QStringLiteral("color-scheme"), 2U}}},
        {QStringLiteral("org.gnome.desktop.interface"),
         {{QStringLiteral("enable-animations"), false}, {QStringLiteral("contrast"), 0U}}},
        {QStringLiteral("org.gnome.other"), {{QStringLiteral("enable-animations"), true}}}};
    session.serve("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                  {{QStringLiteral("ReadAll"),
                    [&](const QVariantList&) { return QVariant::fromValue(groups); }}});
    const auto change = [&](const char* group, const char* key, const QVariant& value) {
        session.emitSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged",
            {QLatin1String(group), QLatin1String(key), QVariant::fromValue(QDBusVariant(value))});
    };
    std::vector<Settings> told;
    DesktopAppearance appearance;
    appearance.start([&](const Settings& settings) { told.push_back(settings); });
    EXPECT_TRUE(processUntil([&] { return !told.empty(); }));
    change("org.freedesktop.appearance", "contrast", 1U);
    change("org.freedesktop.appearance", "contrast", 0U);
    change("org.gnome.desktop.interface", "enable-animations", true);
    EXPECT_TRUE(processUntil([&] { return told.size() >= 3; }));
    EXPECT_EQ(told, (std::vector<Settings>{{true, true}, {false, true}, {false, false}}));
}

}  // namespace
}  // namespace tonquil
