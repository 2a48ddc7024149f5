// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <string>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "platform/choice/DisplayServiceChoice.h"
#include "platform/posix/PollRunLoop.h"
#include "platform/posix/PosixLocalHost.h"
#include "platform/posix/StandardStreams.h"
#include "platform/posix/TerminationSignals.h"
#include "platform/posix/UdpSocket.h"

// No iostreams here: their locale setup takes longer than everything else a command does.

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;

[[nodiscard]] bool print(const std::string& text, FILE* stream) {
    return std::fwrite(text.data(), 1, text.size(), stream) == text.size() &&
           std::fflush(stream) == 0;
}

/// Prints one line, even if file or display names contain newlines.
void say(std::string line) {
    std::ranges::replace_if(
        line, [](unsigned char c) { return std::iscntrl(c) != 0; }, '?');
    // If this fails there is nowhere left to report it.
    static_cast<void>(print("tonquilctl: " + line + "\n", stderr));
}

tonquil::RemoteAccess remoteAccess(tonquil::PollRunLoop& loop) {
    return {.runLoop = loop,
            .run = [&loop] { loop.run(); },
            .stop = [&loop] { loop.stop(); },
            .openSocket = []() -> tonquil::Result<std::unique_ptr<tonquil::DatagramSocket>> {
                return tonquil::UdpSocket::open();
            },
            .lookUpHost = tonquil::lookUpHost,
            .printNow = [](const std::string& text) { return print(text, stdout); }};
}

}  // namespace

int main(int argc, char** argv) {
    tonquil::fillStandardStreams();
    const auto arguments = tonquil::parseArguments(argc, argv);
    if (!arguments) {
        say(arguments.error().sentence + " Try \"tonquilctl --help\".");
        return wrongUsage;
    }
    std::string logged;
    std::string out;
    std::string notes;
    tonquil::PollRunLoop loop;
    const tonquil::RemoteAccess remote = remoteAccess(loop);
    tonquil::Result<std::unique_ptr<tonquil::TerminationSignals>> signals;
    if (arguments->command == tonquil::Arguments::Command::remoteWatch) {
        signals = tonquil::TerminationSignals::watch(loop, [&](int) { loop.stop(); });
        if (!signals) {
            say(signals.error().sentence);
            return failed;
        }
    }
    const auto log = [&](std::string_view line) { logged = line; };
    const auto result = tonquil::runCommand(
        *arguments, {.openDisplays = [&] { return tonquil::chooseDisplayService(nullptr, log); },
                     .logged = logged,
                     .out = out,
                     .remote = remote,
                     .notes = notes});
    if (!result) {
        const std::string& sentence = result.error().sentence;
        const std::string& detail = result.error().detail;
        say(detail.empty() ? sentence : sentence + " (" + detail + ")");
        return failed;
    }
    static_cast<void>(print(notes, stderr));
    if (!print(out, stdout)) {
        say("The output could not be written.");
        return failed;
    }
    return 0;
}
