// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "values/PropertyValue.h"

namespace tonquil {

class TQPlayerServer;

/// The remote-configuration server's only source of display information.
///
/// All calls come from the server on the event loop. Any of them may destroy the server.
class TQPlayerServerDataSource {
 public:
    virtual ~TQPlayerServerDataSource() = default;

    /// The reference IDs of the displays, for every announce.
    [[nodiscard]] virtual std::vector<std::string> screensForPlayerServer(
        TQPlayerServer& server) = 0;

    /// A display's "number", "local", "gamma" and "content", called once per ID and announce. If
    /// the result is not a dictionary, the display is left out of the announce. The numbers of
    /// "gamma" are floats (see `singlePrecision`); the server writes them in shortest text.
    [[nodiscard]] virtual PropertyValue playerServerInfoForScreen(
        TQPlayerServer& server, const std::string& referenceID) = 0;

    /// A display's "gamma" and "content" in state format; the server never calls it.
    [[nodiscard]] virtual PropertyValue playerServerStateForScreen(
        TQPlayerServer& server, const std::string& referenceID) = 0;

    /// Applies a state from the network. It is a dictionary at most 15 levels deep; nothing else
    /// about it or the ID is validated.
    virtual void playerServerSetStateForScreen(TQPlayerServer& server, const PropertyValue& state,
                                               const std::string& referenceID) = 0;

    /// The self-test did not even receive this server's own announce; `reason` is
    /// `TQPlayerServer::noAnnounceHeard`.
    virtual void playerServerFailedBroadcastTest(TQPlayerServer& server, std::uint64_t reason) = 0;
};

}  // namespace tonquil
