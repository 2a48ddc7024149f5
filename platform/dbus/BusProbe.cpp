// SPDX-License-Identifier: MIT
#include "platform/dbus/BusProbe.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <QStringList>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

using namespace std::chrono_literals;

struct SocketAddress {
    sockaddr_un name;
    socklen_t size;
};

// "unix:path=/run/bus,guid=…"; a list of such has semicolons.
std::optional<SocketAddress> socketAddress(const QString& address) {
    const QString transport = QStringLiteral("unix:");
    for (const QString& alternative : address.split(QLatin1Char(';'))) {
        if (!alternative.startsWith(transport)) {
            continue;
        }
        for (const QString& field : alternative.mid(transport.size()).split(QLatin1Char(','))) {
            const bool isAbstract = field.startsWith(QStringLiteral("abstract="));
            if (!isAbstract && !field.startsWith(QStringLiteral("path="))) {
                continue;
            }
            const QByteArray value =
                QByteArray::fromPercentEncoding(field.section(QLatin1Char('='), 1).toLocal8Bit());
            // An abstract name begins with a zero byte.
            const QByteArray name = isAbstract ? QByteArray(1, '\0') + value : value;
            SocketAddress result{};
            if (static_cast<std::size_t>(name.size()) < sizeof result.name.sun_path) {
                result.name.sun_family = AF_UNIX;
                std::copy(name.begin(), name.end(), std::begin(result.name.sun_path));
                result.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) +
                              static_cast<socklen_t>(name.size());
                return result;
            }
        }
    }
    return std::nullopt;
}

}  // namespace

BusProbe::BusProbe(const QString& address, Call call) : _call(std::move(call)) {
    const bool isAsked = ask(address);
    const std::string obstacle =
        isAsked ? "it does not answer" : std::generic_category().message(errno);
    _limit.setSingleShot(true);
    QObject::connect(&_limit, &QTimer::timeout, &_limit, [this, obstacle] { finish(obstacle); });
    _limit.start(isAsked ? 5s : 0s);
}

bool BusProbe::ask(const QString& address) {
    const auto name = socketAddress(address);
    if (!name) {
        errno = EAFNOSUPPORT;
        return false;
    }
    _socket = FileHandle(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what the system asks for.
    const auto* const generic = reinterpret_cast<const sockaddr*>(&name->name);
    // A bus answers this with the kinds of authentication it takes.
    constexpr std::string_view question("\0AUTH\r\n", 7);
    if (connect(_socket.get(), generic, name->size) != 0 ||
        send(_socket.get(), question.data(), question.size(), MSG_NOSIGNAL) < 0) {
        return false;
    }
    _answer = std::make_unique<QSocketNotifier>(_socket.get(), QSocketNotifier::Read);
    QObject::connect(_answer.get(), &QSocketNotifier::activated, &_limit, [this] { takeAnswer(); });
    return true;
}

void BusProbe::takeAnswer() {
    char letter = 0;
    const bool isAnswered = recv(_socket.get(), &letter, 1, 0) == 1;
    finish(isAnswered ? "" : "it does not take connections");
}

void BusProbe::finish(const std::string& obstacle) {
    _limit.stop();
    if (_answer) {
        _answer->setEnabled(false);
    }
    _socket = FileHandle();
    _call(obstacle);
}

}  // namespace tonquil
