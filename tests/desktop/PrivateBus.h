// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <functional>
#include <map>
#include <memory>

#include "tests/support/ProcessRunner.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {

/// A bus daemon of the test's own, which an environment variable names while it lives, with a
/// connection to it that plays the desktop.
class PrivateBus {
 public:
    /// Ends the program if no daemon can be started.
    explicit PrivateBus(const char* variable);
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    void emitSignal(const char* path, const char* interface, const char* name,
                    const QVariantList& arguments = {});
    /// Takes a well-known name and gives it up again.
    void takeAndLeave(const char* name);
    /// Makes the daemon hang.
    void suspend() { _daemon->send(SIGSTOP); }
    /// Ends the daemon at once.
    void kill() { _daemon->kill(); }

    using Answer = std::function<QVariant(const QVariantList& arguments)>;
    /// Becomes a service whose object at `path`, and all below it, answer these methods; an
    /// invalid answer becomes an error.
    void serve(const char* name, const char* path, std::map<QString, Answer> methods);

 private:
    const char* _variable;
    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _daemon;
    QString _name;
    QDBusConnection _connection;
    std::unique_ptr<QDBusVirtualObject> _object;
};

}  // namespace tonquil
