// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>
#include <functional>
#include <memory>
#include <string>

#include "foundation/Log.h"
#include "platform/dbus/BusProbe.h"

namespace tonquil {

/// A connection of our own to the system's or the session's D-Bus, which a bus that hangs does not
/// make the main thread wait for.
///
/// All calls are made on the main thread, from Qt's event loop, until the object is destroyed.
class BusConnection {
 public:
    enum class Bus : bool { System, Session };
    using Arguments = QList<QVariant>;

    /// A signal by its interface and name, from whichever sender.
    struct Signal {
        QString interface;
        QString name;
        /// Any object's when null.
        QString path = {};
        /// What the arguments must be, in their order; a null one may be anything.
        QStringList arguments = {};
    };

    /// `log` gets one line when the bus is not there, and one when it is lost.
    BusConnection(Bus bus, Log log);
    ~BusConnection();
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    /// Connects once the bus shows that it answers; calls once if that succeeds. To be called once.
    void open(std::function<void()> opened);

    /// Calls with the arguments of each such signal from now on. Only once it is open.
    void watch(const Signal& signal, std::function<void(const Arguments&)> call);
    /// Calls a method; then `answered` with the arguments of its reply, or `failed`.
    void ask(const QDBusMessage& question, std::function<void(const Arguments&)> answered,
             std::function<void()> failed = {});

 private:
    void connect(const QString& address);
    void report(const std::string& text) const;

    Bus _bus;
    Log _log;
    std::function<void()> _opened;
    QString _name;
    /// Invalid until the bus answers.
    QDBusConnection _connection;
    std::unique_ptr<BusProbe> _probe;
    /// Owns the receivers of signals and the waiting calls, so that nothing is called after it.
    std::unique_ptr<QObject> _receivers;
};

}  // namespace tonquil
