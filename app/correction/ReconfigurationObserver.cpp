// SPDX-License-Identifier: MIT
#include "app/correction/ReconfigurationObserver.h"

namespace tonquil {

void ReconfigurationObserver::displayReconfigured(ReconfigurationFlags flags) {
    if (flags == beginConfiguration) {
        if (_counter.depth == 0) {
            _log("Begin display reconfiguration.");
        }
        ++_counter.depth;
        return;
    }
    if (_counter.depth > 0) {
        --_counter.depth;
    }
    if (_counter.depth == 0) {
        _log("Updating screen list.");
        _updateScreens();
    }
}

}  // namespace tonquil
