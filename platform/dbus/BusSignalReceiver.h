// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>
#include <utility>

namespace tonquil {

/// Receives one subscription's signals: QtDBus delivers them only to slots by name.
class BusSignalReceiver final : public QObject {
    Q_OBJECT

 public:
    using Call = std::function<void(const QList<QVariant>&)>;

    BusSignalReceiver(Call call, QObject* owner) : QObject(owner), _call(std::move(call)) {}

    Q_SLOT void take(const QDBusMessage& message) { _call(message.arguments()); }

 private:
    Call _call;
};

}  // namespace tonquil
