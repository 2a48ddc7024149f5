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

/// A private bus daemon, announced in an environment variable while it lives, with a connection to
/// it that plays the desktop.
class PrivateBus {
 public:
    explicit PrivateBus(const char* variable);
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    void emitSignal(const char* path, const char* interface, const char* name,
                    const QVariantList& arguments);
    /// Takes a well-known name and releases it again.
    void takeAndLeave(const char* name);
    /// Stops the daemon, or with SIGSTOP makes it hang.
    void send(int signal) { _daemon->send(signal); }

    using Answer = std::function<QVariant(const QVariantList& arguments)>;
    using Methods = std::map<const char*, Answer>;
    /// Becomes a service whose object at `path`, and everything below it, implements these methods;
    /// an invalid answer becomes an error.
    void serve(const char* name, const char* path, const Methods& methods);

 private:
    const char* _variable;
    ScratchFolder _folder;
    std::unique_ptr<BackgroundProcess> _daemon;
    QDBusConnection _connection{QString()};
    std::unique_ptr<QDBusVirtualObject> _object;
};

}  // namespace tonquil
