// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "files/FileHandle.h"

namespace tonquil {

/// Finds out whether a bus answers at all, because the bus library waits for ever for one that
/// takes a connection and hangs.
class BusProbe {
 public:
    /// With why the bus cannot be used; empty when it answers.
    using Call = std::function<void(const std::string& obstacle)>;

    /// `address` as the bus library takes it; only those of UNIX sockets are understood. Calls
    /// once, from Qt's event loop and within 5 s, unless it is destroyed before; the call must not
    /// destroy it.
    BusProbe(const QString& address, Call call);

 private:
    /// False with the reason in errno.
    [[nodiscard]] bool ask(const QString& address);
    void takeAnswer();
    void finish(const std::string& obstacle);

    Call _call;
    FileHandle _socket;
    QTimer _limit;
    std::unique_ptr<QSocketNotifier> _answer;
};

}  // namespace tonquil
