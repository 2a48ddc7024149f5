// SPDX-License-Identifier: MIT
#include "tests/desktop/PrivateBus.h"

#include <QDBusMessage>
#include <QUuid>
#include <chrono>
#include <fstream>

#include "tests/support/Succeeded.h"

namespace tonquil {

namespace {

/// Implements the methods of a made-up service.
class Service final : public QDBusVirtualObject {
 public:
    explicit Service(PrivateBus::Methods methods) : _methods(std::move(methods)) {}

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        QVariant answer;
        for (const auto& [name, method] : _methods) {
            if (message.member() == QLatin1String(name)) {
                answer = method(message.arguments());
            }
        }
        return connection.send(answer.isValid()
                                   ? message.createReply(answer)
                                   : message.createErrorReply(QDBusError::Failed, QString()));
    }

 private:
    PrivateBus::Methods _methods;
};

}  // namespace

PrivateBus::PrivateBus(const char* variable) : _variable(variable) {
    const std::string configuration = _folder.path() / "bus.conf";
    std::ofstream(configuration) << "<busconfig><type>session</type><listen>unix:path="
                                 << (_folder.path() / "bus").native()
                                 << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                    "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                    "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                    "</policy></busconfig>\n";
    _daemon = BackgroundProcess::start({.command = {"dbus-daemon", "--config-file", configuration,
                                                    "--print-address", "--nofork"}})
                  .value();
    EXPECT_TRUE(_daemon->waitForOutput("\n", std::chrono::seconds(20))) << _daemon->standardError();
    qputenv(_variable, QByteArray::fromStdString(_daemon->standardOutput()).trimmed());
    _connection = QDBusConnection::connectToBus(qEnvironmentVariable(_variable),
                                                QUuid::createUuid().toString());
}

PrivateBus::~PrivateBus() {
    QDBusConnection::disconnectFromBus(_connection.name());
    qunsetenv(_variable);
}

void PrivateBus::emitSignal(const char* path, const char* interface, const char* name,
                            const QVariantList& arguments) {
    auto signal = QDBusMessage::createSignal(QLatin1String(path), QLatin1String(interface),
                                             QLatin1String(name));
    signal.setArguments(arguments);
    _connection.send(signal);
}

void PrivateBus::takeAndLeave(const char* name) {
    _connection.registerService(QLatin1String(name));
    _connection.unregisterService(QLatin1String(name));
}

void PrivateBus::serve(const char* name, const char* path, const Methods& methods) {
    _object = std::make_unique<Service>(methods);
    _connection.registerVirtualObject(QLatin1String(path), _object.get(), QDBusConnection::SubPath);
    _connection.registerService(QLatin1String(name));
}

}  // namespace tonquil
