// SPDX-License-Identifier: MIT
#include "tests/program/Controls.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace tonquil {

// The accessibility bus is started by the desk's session bus. Its service file is in Debian's data
// folder, which the desk hides.
Controls::Controls(const Desk& desk)
    : _session(desk.begin({"env", "-u", "XDG_DATA_DIRS", "dbus-daemon", "--session", "--nofork",
                           "--nopidfile", "--print-address",
                           "--address=unix:path=" + (desk.folder() / "session-bus").native()})) {
    EXPECT_TRUE(_session->waitForOutput("\n", std::chrono::seconds(20)));
    const auto address = desk.run({"dbus-send", "--print-reply=literal", "--dest=org.a11y.Bus",
                                   "/org/a11y/bus", "org.a11y.Bus.GetAddress"});
    EXPECT_TRUE(address.succeeded()) << address.standardError;
    _bus = QDBusConnection::connectToBus(QString::fromStdString(address.standardOutput).trimmed(),
                                         QStringLiteral("controls"));
}

QVariant Controls::ask(const Accessible& of, const char* interface, const char* question,
                       const QVariantList& arguments) const {
    auto call = QDBusMessage::createMethodCall(of.service, of.path, QLatin1String(interface),
                                               QLatin1String(question));
    call.setArguments(arguments);
    return _bus.call(call).arguments().value(0);
}

std::optional<Controls::Accessible> Controls::findBelow(const Accessible& top, const QString& role,
                                                        const QString& name) const {
    constexpr const char* accessible = "org.a11y.atspi.Accessible";
    const QVariant topName = ask(top, "org.freedesktop.DBus.Properties", "Get",
                                 {QLatin1String(accessible), QStringLiteral("Name")});
    if (topName.value<QDBusVariant>().variant().toString() == name &&
        ask(top, accessible, "GetRoleName").toString() == role) {
        return top;
    }
    const auto children = ask(top, accessible, "GetChildren").value<QDBusArgument>();
    if (children.currentType() != QDBusArgument::ArrayType) {
        return std::nullopt;
    }
    std::optional<Accessible> found;
    for (children.beginArray(); !children.atEnd() && !found;) {
        Accessible child;
        QDBusObjectPath path;
        children.beginStructure();
        children >> child.service >> path;
        children.endStructure();
        child.path = path.path();
        found = findBelow(child, role, name);
    }
    return found;
}

std::optional<Desk::Place> Controls::find(const char* role, const char* name) const {
    const Accessible registry{QStringLiteral("org.a11y.atspi.Registry"),
                              QStringLiteral("/org/a11y/atspi/accessible/root")};
    const auto control = findBelow(registry, QString::fromUtf8(role), QString::fromUtf8(name));
    if (!control) {
        return std::nullopt;
    }
    constexpr uint ofTheScreen = 0;
    const auto extents = ask(*control, "org.a11y.atspi.Component", "GetExtents", {ofTheScreen})
                             .value<QDBusArgument>();
    Desk::Place place;
    extents.beginStructure();
    extents >> place.x >> place.y >> place.width >> place.height;
    extents.endStructure();
    return place.width > 0 ? std::optional(place) : std::nullopt;
}

}  // namespace tonquil
