// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>
#include <utility>

#include "app/TQController.h"

namespace tonquil {

/// Restores the windows that were open when a session manager ended the session.
class SessionRestoration : public QObject {
 public:
    struct Storage {
        std::function<PropertyValue()> load;
        std::function<void(const PropertyValue&)> store;
    };
    /// Saves the open windows whenever the session manager asks. The controller must outlive this.
    SessionRestoration(TQController& controller, Storage storage);

    /// Shows the windows again, if a session manager started the program.
    void restore() const;

 private:
    TQController& _controller;
    Storage _storage;
};

}  // namespace tonquil
