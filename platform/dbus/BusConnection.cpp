// SPDX-License-Identifier: MIT
#include "platform/dbus/BusConnection.h"

#include <QDBusError>
#include <QDBusPendingCallWatcher>
#include <utility>

#include "platform/dbus/BusSignalReceiver.h"

namespace tonquil {

namespace {

// Empty when there is none. The bus library would start a session bus of its own then.
QString addressOf(BusConnection::Bus bus) {
    if (bus == BusConnection::Bus::System) {
        return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                    QStringLiteral("unix:path=/run/dbus/system_bus_socket"));
    }
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariable(
        "DBUS_SESSION_BUS_ADDRESS",
        folder.isEmpty() ? QString() : QStringLiteral("unix:path=%1/bus").arg(folder));
}

QString newConnectionName() {
    static int count = 0;
    return QStringLiteral("tonquil-%1").arg(++count);
}

}  // namespace

BusConnection::BusConnection(Bus bus, Log log)
    : _bus(bus),
      _log(std::move(log)),
      _name(newConnectionName()),
      _connection(QString()),
      _receivers(std::make_unique<QObject>()) {}

BusConnection::~BusConnection() {
    _receivers.reset();
    QDBusConnection::disconnectFromBus(_name);
}

void BusConnection::open(std::function<void()> opened) {
    const QString address = addressOf(_bus);
    if (address.isEmpty()) {
        report("is not there, so what it tells is left out.");
        return;
    }
    _opened = std::move(opened);
    _probe = std::make_unique<BusProbe>(address, [this, address](const std::string& obstacle) {
        if (obstacle.empty()) {
            connect(address);
        } else {
            std::string text = "cannot be reached, so what it tells is left out: ";
            report(text.append(obstacle).append("."));
        }
    });
}

void BusConnection::connect(const QString& address) {
    _connection = QDBusConnection::connectToBus(address, _name);
    if (!_connection.isConnected()) {
        std::string text = "refuses us, so what it tells is left out: ";
        report(text.append(_connection.lastError().message().toStdString()));
        return;
    }
    watch({QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected")},
          [this](const Arguments&) { report("has gone; what it tells is no longer noticed."); });
    _opened();
}

void BusConnection::watch(const Signal& signal, std::function<void(const Arguments&)> call) {
    auto* const receiver = new BusSignalReceiver(std::move(call), _receivers.get());
    _connection.connect(QString(), signal.path, signal.interface, signal.name, signal.arguments,
                        QString(), receiver, SLOT(take(QDBusMessage)));
}

void BusConnection::ask(const QDBusMessage& question,
                        std::function<void(const Arguments&)> answered,
                        std::function<void()> failed) {
    auto* const call =
        new QDBusPendingCallWatcher(_connection.asyncCall(question), _receivers.get());
    QObject::connect(call, &QDBusPendingCallWatcher::finished, _receivers.get(),
                     [call, answered = std::move(answered), failed = std::move(failed)] {
                         const QDBusMessage reply = call->reply();
                         call->deleteLater();
                         if (reply.type() == QDBusMessage::ReplyMessage) {
                             answered(reply.arguments());
                         } else if (failed) {
                             failed();
                         }
                     });
}

void BusConnection::report(const std::string& text) const {
    if (_log) {
        std::string line = _bus == Bus::System ? "The system bus " : "The session bus ";
        _log(line.append(text));
    }
}

}  // namespace tonquil
