// SPDX-License-Identifier: MIT
#include "tests/desktop/PrivateBus.h"

#include <QDBusMessage>
#include <chrono>
#include <fstream>
#include <utility>

namespace tonquil {

namespace {

using namespace std::chrono_literals;

/// Answers the methods of a made-up service.
class Service final : public QDBusVirtualObject {
 public:
    explicit Service(std::map<QString, PrivateBus::Answer> methods)
        : _methods(std::move(methods)) {}

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const auto method = _methods.find(message.member());
        const QVariant answer =
            method == _methods.end() ? QVariant() : method->second(message.arguments());
        return connection.send(answer.isValid()
                                   ? message.createReply(answer)
                                   : message.createErrorReply(QDBusError::Failed, QString()));
    }

 private:
    std::map<QString, PrivateBus::Answer> _methods;
};

std::unique_ptr<BackgroundProcess> startDaemon(const ScratchFolder& folder) {
    const std::string configuration = folder.path() / "bus.conf";
    std::ofstream(configuration) << "<busconfig><type>session</type><listen>unix:path="
                                 << (folder.path() / "bus").native()
                                 << "</listen><auth>EXTERNAL</auth><policy context=\"default\">"
                                    "<allow send_destination=\"*\" eavesdrop=\"true\"/>"
                                    "<allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                                    "</policy></busconfig>\n";
    ProcessRequest request;
    request.command = {"dbus-daemon", "--config-file", configuration, "--print-address",
                       "--nofork"};
    auto daemon = BackgroundProcess::start(request).value();
    if (!daemon->waitForOutput("\n", 20s)) {
        qFatal("The bus daemon does not start: %s", daemon->standardError().c_str());
    }
    return daemon;
}

QString newName() {
    static int count = 0;
    return QStringLiteral("desktop-%1").arg(++count);
}

}  // namespace

PrivateBus::PrivateBus(const char* variable)
    : _variable(variable), _daemon(startDaemon(_folder)), _name(newName()), _connection(QString()) {
    qputenv(_variable, QByteArray::fromStdString(_daemon->standardOutput()).trimmed());
    _connection = QDBusConnection::connectToBus(qEnvironmentVariable(_variable), _name);
}

PrivateBus::~PrivateBus() {
    QDBusConnection::disconnectFromBus(_name);
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

void PrivateBus::serve(const char* name, const char* path, std::map<QString, Answer> methods) {
    _object = std::make_unique<Service>(std::move(methods));
    _connection.registerVirtualObject(QLatin1String(path), _object.get(), QDBusConnection::SubPath);
    _connection.registerService(QLatin1String(name));
}

}  // namespace tonquil
