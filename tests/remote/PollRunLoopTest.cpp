// SPDX-License-Identifier: MIT
#include "platform/posix/PollRunLoop.h"

#include <gtest/gtest.h>
#include <sys/eventfd.h>

#include <fstream>
#include <string>

#include "platform/posix/PosixLocalHost.h"
#include "tests/support/FileDescriptor.h"
#include "tests/support/ScratchFolder.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

TEST(PollRunLoops, CallWhatIsDueInOrderAndEndWhenNothingIsLeft) {
    PollRunLoop loop;
    std::string order;
    const FileDescriptor readable(eventfd(1, EFD_CLOEXEC));
    const auto late = loop.callOnce(20ms, [&] { order += 'e'; });
    const auto early = loop.callOnce(10ms, [&] { order += 'd'; });
    std::unique_ptr<RunLoop::Handle> watch;
    watch = loop.watchReadable(readable.get(), [&] {
        order += 'b';
        loop.post([&] { order += 'c'; });
        watch.reset();
    });
    loop.post([&] { order += 'a'; });
    loop.run();
    EXPECT_EQ(order, "abcde");
}

TEST(PollRunLoops, GiveEveryoneTheirTurn) {
    PollRunLoop loop;
    const FileDescriptor readable(eventfd(1, EFD_CLOEXEC));
    int calls = 0;
    const auto watch = loop.watchReadable(readable.get(), [&] { ++calls; });
    const RunLoop::Call again = [&] { loop.post(again); };
    again();
    int ticks = 0;
    const auto start = loop.now();
    const auto timer = loop.callRepeatedly(5ms, [&] {
        ++ticks;
        loop.stop();
    });
    loop.run();
    loop.run();
    EXPECT_EQ(ticks, 2);
    EXPECT_GE(loop.now() - start, 10ms);
    EXPECT_GT(calls, 0) << "neither what is always posted nor what is always readable goes alone";
}

TEST(PosixLocalHosts, AreCalledWhatTheirOwnerCallsThem) {
    const ScratchFolder folder;
    const std::filesystem::path file = folder.path() / "machine-info";
    const std::string hostName = PosixLocalHost(file).localizedName();
    EXPECT_FALSE(hostName.empty());
    const std::vector<std::pair<std::string, std::string>> rows{
        {"ICON_NAME=computer\nPRETTY_HOSTNAME=\"Anna's \\\"desk\\\"\"\n", "Anna's \"desk\""},
        {"PRETTY_HOSTNAME=a\nPRETTY_HOSTNAME='b\\c'", "b\\c"},
        {"PRETTY_HOSTNAME=\n", hostName},
        {"#PRETTY_HOSTNAME=x\nPRETTY_HOSTNAMES=x\n", hostName},
        {"PRETTY_HOSTNAME=\"B\xC3\xBCro", "B\xC3\xBCro"}};
    for (const auto& [contents, name] : rows) {
        SCOPED_TRACE(contents);
        std::ofstream(file) << contents;
        EXPECT_EQ(PosixLocalHost(file).localizedName(), name);
    }
}

}  // namespace
}  // namespace tonquil
