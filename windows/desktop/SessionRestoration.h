// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <utility>

#include "app/TQController.h"

namespace tonquil {

/// Brings windows back that were shown when a session manager ended the session.
class SessionRestoration : public QObject {
 public:
    struct Storage {
        std::function<PropertyValue()> load;
        std::function<void(const PropertyValue&)> store;
    };
    /// Keeps the windows whenever the session manager asks for it. The controller must outlive
    /// this.
    SessionRestoration(TQController& controller, Storage storage);

    /// Shows the windows again, if it is a session manager that has started the program.
    void restore() const;

 private:
    TQController& _controller;
    Storage _storage;
};

}  // namespace tonquil
