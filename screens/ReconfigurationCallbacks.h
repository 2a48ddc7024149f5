// SPDX-License-Identifier: MIT
#pragma once

#include <list>
#include <memory>

#include "screens/DisplayService.h"

namespace tonquil {

/// The list of registered callbacks, for display service implementations.
///
/// A callback may add callbacks and remove itself or others while it runs. A subscription may
/// outlive the list.
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
