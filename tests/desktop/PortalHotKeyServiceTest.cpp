// SPDX-License-Identifier: MIT
#include "platform/portal/PortalHotKeyService.h"

#include <gmock/gmock.h>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include "platform/dbus/BusAddresses.h"
#include "tests/desktop/PrivateBus.h"
#include "tests/desktop/QtSurroundings.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

struct NamedOptions {
    QString name;
    QVariantMap options;
};
QDBusArgument& operator<<(QDBusArgument& argument, const NamedOptions& named) {
    argument.beginStructure();
    argument << named.name << named.options;
    argument.endStructure();
    return argument;
}
const QDBusArgument& operator>>(const QDBusArgument& argument, NamedOptions& named) {
    argument.beginStructure();
    argument >> named.name >> named.options;
    argument.endStructure();
    return argument;
}

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr std::uint16_t f5 = 96;
constexpr std::uint16_t noKey = 0xFFF0;
constexpr const char* portal = "org.freedesktop.portal.Desktop";
constexpr const char* desktop = "/org/freedesktop/portal/desktop";

QVariant shortcutList(const QString& name, const QString& trigger) {
    return QVariant::fromValue(
        QList<NamedOptions>{{name, {{QStringLiteral("trigger_description"), trigger}}}});
}

/// A desktop that gives each first action the keys "Hyper+1".
class PortalHotKeys : public testing::Test {
 protected:
    void SetUp() override {
        qDBusRegisterMetaType<NamedOptions>();
        qDBusRegisterMetaType<QList<NamedOptions>>();
        const auto tell = [this](const char* what) {
            return [this, what](const HotKeyServiceEvent& event) {
                told.push_back(what + std::to_string(event.id) + " at " +
                               std::to_string(event.timestamp.count()));
            };
        };
        service.setHandlers(tell("down "), tell("up "));
    }
    void serve() {
        const QVariant nothing = QVariantMap();
        bus.serve(portal, desktop,
                  {{"Get", [](auto&) { return QVariant::fromValue(QDBusVariant(1U)); }},
                   {"CreateSession",
                    [this](auto& arguments) {
                        session = "/session" + std::to_string(++sessions);
                        if (failing == "CreateSession") {
                            return QVariant();
                        }
                        return answer(arguments, {{QStringLiteral("session_handle"),
                                                   QString::fromStdString(session)}});
                    }},
                   {"BindShortcuts", [this](auto& arguments) {
                        if (failing == "BindShortcuts") {
                            return QVariant();
                        }
                        if (isDialogCancelled) {
                            close();
                            isGranted = false;
                        }
                        bound.emplace_back();
                        const auto list = qdbus_cast<QList<NamedOptions>>(arguments.at(1));
                        for (const NamedOptions& each : list) {
                            bound.back() +=
                                each.name + u' ' +
                                each.options[QStringLiteral("description")].toString() + u' ' +
                                each.options[QStringLiteral("preferred_trigger")].toString() + u';';
                        }
                        return answer(
                            arguments,
                            {{QStringLiteral("shortcuts"),
                              shortcutList(list.front().name, QStringLiteral("Hyper+1"))}});
                    }}});
    }
    /// Answers before the call returns, as a portal may.
    QVariant answer(const QVariantList& arguments, const QVariantMap& results) {
        const auto options = qdbus_cast<QVariantMap>(arguments.back());
        const QString path =
            QStringLiteral("%1/request/%2/%3")
                .arg(QLatin1String(desktop), bus.caller().mid(1).replace(u'.', u'_'),
                     options[QStringLiteral("handle_token")].toString());
        bus.emitSignal(path.toUtf8(), "org.freedesktop.portal.Request", "Response",
                       {isGranted ? 0U : 1U, results});
        return QVariant::fromValue(QDBusObjectPath(path));
    }
    void close() {
        bus.emitSignal(session.c_str(), "org.freedesktop.portal.Session", "Closed",
                       {QVariantMap()});
    }
    void key(const char* signal, const char* action, qulonglong time, const char* in = nullptr) {
        bus.emitSignal(desktop, "org.freedesktop.portal.GlobalShortcuts", signal,
                       {QVariant::fromValue(
                            QDBusObjectPath(QLatin1String(in == nullptr ? session.c_str() : in))),
                        QLatin1String(action), time, QVariantMap()});
    }
    [[nodiscard]] bool until(const std::function<bool()>& condition) {
        return processUntil([&] {
            loop.advance(0ms);
            loop.pollReadable(0ms);
            return condition();
        });
    }

    PrivateBus bus{"DBUS_SESSION_BUS_ADDRESS"};
    ManualRunLoop loop;
    std::vector<std::string> told;
    std::vector<std::string> log;
    std::string session;
    int sessions = 0;
    bool isGranted = true;
    bool isDialogCancelled = false;
    std::string failing;
    std::vector<QString> bound;
    PortalHotKeyService service{{.runLoop = loop,
                                 .descriptions = {{"switch", "Switch it"}, {"show", "Show it"}},
                                 .changed = [] {},
                                 .log = [this](std::string_view line) { log.emplace_back(line); }}};
};

TEST_F(PortalHotKeys, AreAskedForTogetherAndReportPressesOfTheirOwnSession) {
    serve();
    service.start(sessionBusAddress());
    auto first = service.registerHotKey(f5, HotKeyServiceModifier::control, 1, "switch").value();
    std::ignore = service.registerHotKey(noKey, 0, 2, "show");
    ASSERT_TRUE(until([&] { return service.trigger("switch") == "Hyper+1"; }));
    EXPECT_THAT(bound, ElementsAre(QStringLiteral("switch Switch it CTRL+F5;show Show it ;")));

    // Registered anew, it is the same action for the desktop.
    service.unregisterHotKey(first);
    first = service.registerHotKey(f5, 0, 3, "switch").value();
    key("Activated", "switch", 7000, "/other");
    key("Activated", "switch", 7000);
    key("Activated", "switch", 7010);
    key("Activated", "show", 7020);
    key("Deactivated", "switch", 7030);
    ASSERT_TRUE(until([&] { return told.size() == 3; }));
    EXPECT_THAT(told, ElementsAre("down 3 at 7000", "down 2 at 7020", "up 3 at 7030"));

    // Without one of them it takes another session, and a key still down is forgotten.
    service.unregisterHotKey(first);
    ASSERT_TRUE(until([&] { return service.trigger("show") == "Hyper+1"; }));
    EXPECT_EQ(sessions, 2);
    EXPECT_EQ(service.trigger("switch"), "");
    key("Deactivated", "show", 7040);
    key("Activated", "show", 7050);
    ASSERT_TRUE(until([&] { return told.size() == 4; }));
    EXPECT_EQ(told.back(), "down 2 at 7050");
    bus.emitSignal(desktop, "org.freedesktop.portal.GlobalShortcuts", "ShortcutsChanged",
                   {QVariant::fromValue(QDBusObjectPath(QString::fromStdString(session))),
                    shortcutList(QStringLiteral("show"), QStringLiteral("Meta+2"))});
    EXPECT_TRUE(until([&] { return service.trigger("show") == "Meta+2"; }));
}

TEST_F(PortalHotKeys, SurviveRefusalsAndComeBackWithThePortal) {
    service.start(sessionBusAddress());
    EXPECT_TRUE(service.registerHotKey(f5, 0, 1, "switch"));
    // The bus answers that there is no portal.
    bus.takeAndLeave("org.example.Probe");
    loop.advance(0ms);
    EXPECT_FALSE(service.isOffered());
    isGranted = false;
    bus.takeAndLeave(portal);
    serve();
    ASSERT_TRUE(until([&] { return log.size() == 1; }));
    EXPECT_TRUE(service.isOffered());
    EXPECT_EQ(sessions, 1);
    EXPECT_TRUE(bound.empty());
    isGranted = true;
    service.changeKeys();
    EXPECT_TRUE(until([&] { return service.trigger("switch") == "Hyper+1"; }));
}

TEST_F(PortalHotKeys, AreAskedForOnceMoreAfterAFailureButNotAfterARefusal) {
    constexpr auto pause = PortalHotKeyService::repeatInterval;
    const auto hasKeys = [&] { return service.trigger("switch") == "Hyper+1"; };
    serve();
    service.start(sessionBusAddress());
    EXPECT_TRUE(service.registerHotKey(f5, 0, 1, "switch"));
    ASSERT_TRUE(until(hasKeys));
    for (const char* method : {"CreateSession", "BindShortcuts"}) {
        failing = method;
        service.changeKeys();
        ASSERT_TRUE(until([&] { return !std::exchange(log, {}).empty(); })) << method;
        failing.clear();
        loop.advance(pause);
        ASSERT_TRUE(until(hasKeys)) << method;
    }
    close();
    ASSERT_TRUE(until([&] { return !hasKeys(); }));
    loop.advance(pause);
    ASSERT_TRUE(until(hasKeys)) << "closed by the desktop";

    // What fails again is given up, and so is what the user refuses.
    sessions = 0;
    failing = "CreateSession";
    service.changeKeys();
    ASSERT_TRUE(until([&] { return log.size() == 1; }));
    loop.advance(pause);
    ASSERT_TRUE(until([&] { return log.size() == 2; }));
    loop.advance(10 * pause);
    failing.clear();
    isDialogCancelled = true;
    service.changeKeys();
    ASSERT_TRUE(until([&] { return log.size() == 3; }));
    loop.advance(10 * pause);
    isDialogCancelled = false;
    isGranted = true;
    service.changeKeys();
    ASSERT_TRUE(until(hasKeys));
    EXPECT_EQ(sessions, 4);
}

}  // namespace
}  // namespace tonquil
