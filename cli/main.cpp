// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "platform/choice/DisplayServiceChoice.h"
#include "platform/folders/XdgFolders.h"
#include "platform/posix/InstanceName.h"
#include "platform/posix/InstanceSocket.h"
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

tonquil::PresetFolder presets() {
    const auto folders = tonquil::XdgFolders::fromEnvironment();
    return tonquil::PresetFolder(folders ? folders->config() / "presets" : "");
}

/// Nothing if no Tonquil is running, and none can without a folder for its socket.
std::optional<tonquil::Result<void>> handOver(const std::string& request) {
    const auto folders = tonquil::XdgFolders::fromEnvironment();
    const auto answer = folders ? tonquil::InstanceSocket::handOver(
                                      folders->runtime() / tonquil::instanceName(), request)
                                : std::nullopt;
    if (!answer) {
        return std::nullopt;
    }
    if (!*answer) {
        return tl::unexpected(answer->error());
    }
    return (*answer)->empty() ? tonquil::Result<void>() : tonquil::problem(**answer);
}

/// What a command writes, and what it is told while it stays.
struct Session {
    tonquil::PollRunLoop loop;
    std::string logged;
    std::string out;
    std::string notes;
    bool isStaying = false;
    bool areDisplaysLost = false;

    tonquil::Result<void> run(const tonquil::Arguments& arguments) {
        tonquil::RemoteAccess remote = remoteAccess(loop);
        remote.run = [this] {
            isStaying = true;
            loop.run();
        };
        const auto log = [this](std::string_view line) {
            logged = line;
            if (isStaying && !areDisplaysLost) {
                say(logged);
            }
        };
        const auto lost = [this] {
            areDisplaysLost = true;
            loop.stop();
        };
        return tonquil::runCommand(
            arguments, {.openDisplays = [&] { return tonquil::chooseDisplayService(nullptr, log); },
                        .logged = logged,
                        .out = out,
                        .remote = remote,
                        .notes = notes,
                        .openDisplaysToHold =
                            [&] {
                                auto service = tonquil::chooseDisplayService(&loop, log, lost);
                                if (service) {
                                    (*service)->setWhenLost(lost);
                                }
                                return service;
                            },
                        .handOver = handOver,
                        .presets = presets(),
                        .areDisplaysLost = [this] { return areDisplaysLost; },
                        .displayServices = tonquil::builtInDisplayServices()});
    }
};

}  // namespace

int main(int argc, char** argv) {
    tonquil::fillStandardStreams();
    const auto arguments = tonquil::parseArguments(argc, argv);
    if (!arguments) {
        say(arguments.error().sentence + " Try \"tonquilctl --help\".");
        return wrongUsage;
    }
    Session session;
    tonquil::Result<std::unique_ptr<tonquil::TerminationSignals>> signals;
    if (arguments->hold || arguments->command == tonquil::Arguments::Command::remoteWatch) {
        signals =
            tonquil::TerminationSignals::watch(session.loop, [&](int) { session.loop.stop(); });
        if (!signals) {
            say(signals.error().sentence);
            return failed;
        }
    }
    const auto result = session.run(*arguments);
    if (!result) {
        const std::string& sentence = result.error().sentence;
        const std::string& detail = result.error().detail;
        say(detail.empty() ? sentence : sentence + " (" + detail + ")");
        return failed;
    }
    static_cast<void>(print(session.notes, stderr));
    if (!print(session.out, stdout)) {
        say("The output could not be written.");
        return failed;
    }
    return 0;
}
