// SPDX-License-Identifier: MIT
#include "platform/dbus/DesktopAppearance.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <vector>

#include "tests/desktop/PrivateBus.h"
#include "tests/desktop/QtSurroundings.h"

namespace tonquil {
namespace {

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
