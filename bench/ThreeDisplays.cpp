// SPDX-License-Identifier: MIT
#include "bench/ThreeDisplays.h"

namespace tonquil {

Result<std::unique_ptr<XServer>> startThreeDisplays() {
    auto server = XServer::start();
    for (const char* connector : {"DUMMY1", "DUMMY2"}) {
        if (server) {
            if (auto plugged = (*server)->plug(connector, "1024x768"); !plugged) {
                return tl::unexpected(plugged.error());
            }
        }
    }
    return server;
}

}  // namespace tonquil
