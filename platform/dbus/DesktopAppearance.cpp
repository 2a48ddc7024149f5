// SPDX-License-Identifier: MIT
#include "platform/dbus/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QMap>
#include <utility>

namespace tonquil {

namespace {

using Arguments = BusConnection::Arguments;

constexpr QLatin1String appearanceGroup("org.freedesktop.appearance");
constexpr QLatin1String interfaceGroup("org.gnome.desktop.interface");
constexpr QLatin1String portalSettings("org.freedesktop.portal.Settings");
constexpr QLatin1String portalPath("/org/freedesktop/portal/desktop");

}  // namespace

DesktopAppearance::DesktopAppearance() : _bus(BusConnection::Bus::Session, {}) {}

void DesktopAppearance::start(Handler handler) {
    _handler = std::move(handler);
    _bus.open([this] {
        _bus.watch({portalSettings, QStringLiteral("SettingChanged"), portalPath},
                   [this](const Arguments& arguments) {
                       take(arguments.value(0).toString(), arguments.value(1).toString(),
                            arguments.value(2).value<QDBusVariant>().variant());
                       tell();
                   });
        ask();
    });
}

// One question for all, which portals of every age answer.
void DesktopAppearance::ask() {
    auto question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), portalPath,
                                       portalSettings, QStringLiteral("ReadAll"));
    question << QStringList{appearanceGroup, interfaceGroup};
    _bus.ask(question, [this](const Arguments& arguments) {
        const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(arguments.value(0));
        for (const QString& group : groups.keys()) {
            const QVariantMap values = groups.value(group);
            for (auto value = values.begin(); value != values.end(); ++value) {
                take(group, value.key(), value.value());
            }
        }
        tell();
    });
}

void DesktopAppearance::take(const QString& group, const QString& key, const QVariant& value) {
    if (group == appearanceGroup && key == QStringLiteral("contrast")) {
        _settings.increaseContrast = value.toUInt() == 1;
    } else if (group == interfaceGroup && key == QStringLiteral("enable-animations")) {
        _settings.reduceMotion = !value.toBool();
    }
}

void DesktopAppearance::tell() {
    if (_settings != _told) {
        _told = _settings;
        _handler(_settings);
    }
}

}  // namespace tonquil
