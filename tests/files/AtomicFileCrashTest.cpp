// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "FolderContents.h"
#include "files/AtomicFile.h"
#include "files/BoundedFile.h"

namespace tonquil {
namespace {

constexpr std::size_t size = 300'000;  // bytes; several steps of writing and of reading

bool isWhole(const std::filesystem::path& target) {
    const auto bytes = readBoundedFile(target, size);
    return bytes && !bytes->empty() && *bytes == std::vector<std::uint8_t>(size, bytes->front());
}

TEST(AtomicFileCrash, LeavesAWholeFileHoweverOftenItsWriterIsKilled) {
    const ScratchFolder folder;
    const auto target = folder / "file";
    std::ptrdiff_t leftBehind = 0;
    for (int round = 0; round < 200; ++round) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const pid_t child = ::fork();
        // The child saves files of one repeated byte, another each time, and tells of each.
        for (auto fill = static_cast<std::uint8_t>(round); child == 0; ++fill) {
            const std::vector<std::uint8_t> contents(size, fill);
            if (!writeFileAtomically(target, contents) || ::write(ends[1], "s", 1) != 1) {
                ::_exit(1);
            }
        }
        ::close(ends[1]);
        char saved = 0;
        // The first save works in spite of what the killed one before may have left behind.
        EXPECT_EQ(::read(ends[0], &saved, 1), 1);
        for (int reads = round % 7; reads > 0; --reads) {
            EXPECT_TRUE(isWhole(target));
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ASSERT_TRUE(isWhole(target)) << round;
        leftBehind += entriesIn(folder.path()) - 1;
    }
    // Else no writer was ever killed while it was writing, and the test has shown nothing.
    EXPECT_GT(leftBehind, 0);
}

}  // namespace
}  // namespace tonquil
