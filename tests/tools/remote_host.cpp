// SPDX-License-Identifier: MIT
//
// The remote-configuration server with displays that exist only in memory, and nothing else:
//
//   remote_host [PORT [REFERENCE-ID...]]
//
// It prints its log and what is set, until SIGTERM or SIGINT.

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/posix/PollRunLoop.h"
#include "platform/posix/PosixLocalHost.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/posix/UdpSocket.h"
#include "remote/TQPlayerServer.h"
#include "tests/remote/PlainDisplays.h"

namespace {

using namespace tonquil;

void say(std::string_view line) {
    std::printf("%.*s\n", static_cast<int>(line.size()), line.data());
    static_cast<void>(std::fflush(stdout));
}

}  // namespace

int main(int argc, char** argv) {
    const int port = argc > 1 ? std::atoi(argv[1]) : remote::serverPort;
    PlainDisplays displays;
    for (int i = 2; i < argc; ++i) {
        displays.displays.push_back({.referenceID = argv[i]});
    }
    if (displays.displays.empty()) {
        displays.displays = {{.referenceID = "1-10-21036"},
                             {.referenceID = "600.000000x340.000000-0-0", .isLocal = true}};
    }
    PollRunLoop loop;
    MachineGuid guid;
    const auto server = TQPlayerServer::initWithUDPPort(
        {.runLoop = loop,
         .openSocket = []() -> Result<std::unique_ptr<DatagramSocket>> {
             return UdpSocket::open();
         },
         .host = std::make_shared<PosixLocalHost>(),
         .guid = guid,
         .log = say},
        static_cast<std::uint16_t>(port));
    const auto signals = TerminationSignals::watch(loop, [&](int) { loop.stop(); });
    if (!server || !signals) {
        return 1;
    }
    (*server)->setDataSource(&displays);
    displays.afterFailure = [] { say("The self-test failed."); };
    // As when a target that was shown is closed: whoever subscribed is told.
    displays.afterSet = [&] {
        say("Set " + displays.statesSet.back().first + ".");
        displays.statesSet.clear();
        (*server)->sendStateToSubscribers();
    };
    const auto success = loop.callOnce(TQPlayerServer::selfTestTime * 2, [&] {
        say(displays.failures.empty() ? "The self-test is over." : "Running on.");
    });
    (*server)->broadcastAnnounce();
    loop.run();
    return 0;
}
