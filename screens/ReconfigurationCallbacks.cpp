// SPDX-License-Identifier: MIT
#include "screens/ReconfigurationCallbacks.h"

#include <algorithm>
#include <utility>

namespace tonquil {

class ReconfigurationCallbacks::Registration : public DisplayService::Subscription {
 public:
    Registration(std::shared_ptr<List> list, DisplayService::ReconfigurationCallback callback)
        : _list(std::move(list)),
          _callback(
              std::make_shared<DisplayService::ReconfigurationCallback>(std::move(callback))) {
        _list->push_back(_callback);
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() override { _list->remove(_callback); }

 private:
    std::shared_ptr<List> _list;
    std::shared_ptr<DisplayService::ReconfigurationCallback> _callback;
};

std::unique_ptr<DisplayService::Subscription> ReconfigurationCallbacks::add(
    DisplayService::ReconfigurationCallback callback) {
    return std::make_unique<Registration>(_list, std::move(callback));
}

void ReconfigurationCallbacks::call(DisplayID display, ReconfigurationFlags flags) const {
    // The copies keep the list and the callback alive during the call.
    const std::shared_ptr<List> list = _list;
    const List callbacks = *list;
    for (const auto& callback : callbacks) {
        if (std::find(list->begin(), list->end(), callback) != list->end()) {
            (*callback)(display, flags);
        }
    }
}

}  // namespace tonquil
