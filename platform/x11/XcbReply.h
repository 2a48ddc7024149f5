// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tonquil {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply, an error or an event of the X server; xcb allocates them with malloc.
template <typename Reply>
using XcbPointer = std::unique_ptr<Reply, FreeReply>;

struct DisconnectXcb {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

}  // namespace tonquil
