// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "values/PropertyValue.h"

namespace tonquil {

class TQPlayerServer;

/// What the remote-configuration server knows of displays: everything comes from here.
///
/// All calls come on the server's thread, from its run loop. Any of them may destroy the server.
class TQPlayerServerDataSource {
 public:
    virtual ~TQPlayerServerDataSource() = default;

    /// The reference IDs of the displays, for every announce.
    [[nodiscard]] virtual std::vector<std::string> screensForPlayerServer(
        TQPlayerServer& server) = 0;

    /// A display's "number", "local", "gamma" and "content", once per ID and announce. A value
    /// that is no dictionary leaves the display out of the announce. Numbers of "gamma" are single
    /// precision (see `singlePrecision`); the server sees to their shortest text.
    [[nodiscard]] virtual PropertyValue playerServerInfoForScreen(
        TQPlayerServer& server, const std::string& referenceID) = 0;

    /// A display's "gamma" and "content" in the form of states; the server never asks for it.
    [[nodiscard]] virtual PropertyValue playerServerStateForScreen(
        TQPlayerServer& server, const std::string& referenceID) = 0;

    /// Applies a state from the network. It is a dictionary, at most 15 levels deep; nothing else
    /// about it or the ID is certain.
    virtual void playerServerSetStateForScreen(TQPlayerServer& server, const PropertyValue& state,
                                               const std::string& referenceID) = 0;

    /// Not even this server's own announce came back in the self-test; `reason` is
    /// `TQPlayerServer::noAnnounceHeard`.
    virtual void playerServerFailedBroadcastTest(TQPlayerServer& server, std::uint64_t reason) = 0;
};

}  // namespace tonquil
