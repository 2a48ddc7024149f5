// SPDX-License-Identifier: MIT
//
// Feeds any datagram to a server in its self-test, to one after its self-test, and to a companion.

#include <algorithm>
#include <cctype>

#include "Require.h"
#include "remote/Announce.h"
#include "remote/PrintableText.h"
#include "tests/remote/ServerBench.h"
#include "values/Utf8.h"

namespace {

using namespace tonquil;

const SocketAddress source(0x0A000002, 50000);

void checkServer(std::string_view datagram, bool isTesting) {
    ServerBench bench;
    bench.start();
    if (isTesting) {
        bench.server = bench.make().value();
        bench.forget();
    }
    bench.receive(datagram, source);
    for (const auto& answer : bench.wire.sent) {
        require(answer.recipient == source && readAnnounce(answer.bytes).has_value());
    }
    // Each ignored datagram and each command logs one line, up to the limit on such lines.
    require(bench.wire.sent.size() <= 1 &&
            bench.log.size() <= std::max<std::size_t>(1, bench.displays.statesSet.size()));
    for (const std::string& line : bench.log) {
        const bool isOrder = line.starts_with("10.0.0.2 sets the display ");
        require((isOrder || line.starts_with("ignored: ")) && line.size() < 5 * 1024 &&
                isUtf8(line));
        require(std::ranges::none_of(line, [](unsigned char c) { return c < 0x20 || c == 0x7F; }));
    }
    for (const auto& [id, state] : bench.displays.statesSet) {
        require(isUtf8(id) && state.is_object());
    }
    // Any value may be set, but announcing it must give an announcement again, or the tag alone.
    bench.forget();
    bench.server->broadcastAnnounce();
    const std::string& announce = bench.wire.sent.front().bytes;
    require(announce == remote::announceTag || isUtf8(announce));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view datagram(reinterpret_cast<const char*>(data), size);  // NOLINT
    checkServer(datagram, false);
    checkServer(datagram, true);
    if (const auto announce = readAnnounce(datagram)) {
        const std::string name = remote::printable(announce->name, 64);
        require(isUtf8(name) && name.size() < 5 * 64);
    }
    return 0;
}
