// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <memory>

#include "screens/DisplayService.h"

namespace tonquil {

/// The callbacks that a display service was given, for its implementations.
///
/// A callback may end its own registration or another's, and may add one, while it is called. A
/// subscription may outlive the list.
class ReconfigurationCallbacks {
 public:
    [[nodiscard]] std::unique_ptr<DisplayService::Subscription> add(
        DisplayService::ReconfigurationCallback callback);
    void call(DisplayID display, ReconfigurationFlags flags) const;

 private:
    using List = std::list<std::shared_ptr<DisplayService::ReconfigurationCallback>>;
    class Registration;

    std::shared_ptr<List> _list = std::make_shared<List>();
};

}  // namespace tonquil
