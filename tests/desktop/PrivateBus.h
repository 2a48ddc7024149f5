// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QUuid>

#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// A bus daemon of the test's own, which an environment variable names while it lives, with a
/// connection to it that plays the desktop.
class PrivateBus : QDBusVirtualObject {
 public:
    explicit PrivateBus(const char* variable) : _variable(variable) {
        EXPECT_TRUE(_daemon->waitForOutput("\n", std::chrono::seconds(20)))
            << _daemon->standardError();
        qputenv(_variable, QByteArray::fromStdString(_daemon->standardOutput()).trimmed());
        _connection = QDBusConnection::connectToBus(qEnvironmentVariable(_variable),
                                                    QUuid::createUuid().toString());
    }
    ~PrivateBus() override {
        QDBusConnection::disconnectFromBus(_connection.name());
        qunsetenv(_variable);
    }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    void emitSignal(const char* path, const char* interface, const char* name,
                    const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interface),
                                                 QLatin1String(name));
        signal.setArguments(arguments);
        _connection.send(signal);
    }
    /// Takes a well-known name and gives it up again.
    void takeAndLeave(const char* name) {
        _connection.registerService(QLatin1String(name));
        _connection.unregisterService(QLatin1String(name));
    }
    /// Ends the daemon, or with SIGSTOP makes it hang.
    void send(int signal) { _daemon->send(signal); }

    /// The unique name of whoever calls the method that is being answered.
    [[nodiscard]] QString caller() const { return _caller; }

    using Answer = std::function<QVariant(const QVariantList& arguments)>;
    using Methods = std::map<std::string, Answer>;
    /// Becomes a service whose object at `path`, and all below it, answer these methods; an
    /// invalid answer becomes an error.
    void serve(const char* name, const char* path, const Methods& methods) {
        _methods = methods;
        _connection.registerVirtualObject(QLatin1String(path), this, QDBusConnection::SubPath);
        _connection.registerService(QLatin1String(name));
    }

 private:
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        _caller = message.service();
        const auto method = _methods.find(message.member().toStdString());
        const QVariant answer =
            method == _methods.end() ? QVariant() : method->second(message.arguments());
        return connection.send(answer.isValid()
                                   ? message.createReply(answer)
                                   : message.createErrorReply(QDBusError::Failed, QString()));
    }

    const char* _variable;
    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _daemon =
        BackgroundProcess::start(
            {.command = {"dbus-daemon", "--session", "--print-address", "--nofork",
                         "--address=unix:path=" + (_folder.path() / "bus").native()}})
            .value();
    QDBusConnection _connection{QString()};
    Methods _methods;
    QString _caller;
};

}  // namespace tonquil
