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

/// The controls of the programs on a desk, as assistive technologies are told of them: a test finds
/// them wherever the fonts and the layout put them. To be made before the program is started.
class Controls {
 public:
    explicit Controls(const Desk& desk);
    ~Controls() { QDBusConnection::disconnectFromBus(QStringLiteral("controls")); }
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    /// Where the control of this role (such as "check box") and name is, if it can be seen.
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
