// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "tests/program/Desk.h"

namespace tonquil {

/// The accessible controls of the programs on a desk: lets a test find them whatever the fonts and
/// the layout. Create it before starting the program.
class Controls {
 public:
    explicit Controls(const Desk& desk);
    ~Controls() { QDBusConnection::disconnectFromBus(QStringLiteral("controls")); }
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    /// The rectangle of the visible control with this role (such as "check box") and name.
    [[nodiscard]] std::optional<Desk::Place> find(const char* role, const char* name) const;

 private:
    struct Accessible {
        QString service;
        QString path;
    };
    [[nodiscard]] QVariant ask(const Accessible& of, const char* interface, const char* question,
                               const QVariantList& arguments = {}) const;
    [[nodiscard]] std::optional<Accessible> findBelow(const Accessible& top, const QString& role,
                                                      const QString& name) const;

    int _argumentCount = 0;
    QCoreApplication _application{_argumentCount, nullptr};
    std::unique_ptr<BackgroundProcess> _session;
    QDBusConnection _bus{QString()};
};

}  // namespace tonquil
