// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <vector>

#include "FolderContents.h"
#include "files/AtomicFile.h"
#include "files/BoundedFile.h"

namespace tonquil {
namespace {

constexpr std::size_t size = 300'000;  // bytes; several steps of writing and of reading

/// Saves files of one repeated byte, another each time, until it is killed. Tells of each file that
/// was saved by a byte in the pipe, which nobody needs to read.
[[noreturn]] void saveForEver(const std::filesystem::path& target, int pipe, std::uint8_t fill) {
    for (;; ++fill) {
        const std::vector<std::uint8_t> contents(size, fill);
        const char answer = writeFileAtomically(target, contents) ? 's' : 'f';
        if (::write(pipe, &answer, 1) != 1 || answer == 'f') {
            ::_exit(1);
        }
    }
}

bool isWhole(const std::filesystem::path& target) {
    const auto bytes = readBoundedFile(target, size);
    return bytes && bytes->size() == size &&
           std::all_of(bytes->begin(), bytes->end(),
                       [first = bytes->front()](std::uint8_t byte) { return byte == first; });
}

TEST(AtomicFileCrash, LeavesAWholeFileHoweverOftenItsWriterIsKilled) {
    const ScratchFolder folder;
    const auto target = folder / "file";
    int leftBehind = 0;
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            saveForEver(target, ends[1], static_cast<std::uint8_t>(round));
        }
        ::close(ends[1]);
        char answer = 0;
        // The first save works in spite of what the killed one before may have left behind.
        EXPECT_EQ(::read(ends[0], &answer, 1), 1);
        EXPECT_EQ(answer, 's');
        for (int reads = round % 7; reads > 0; --reads) {
            EXPECT_TRUE(isWhole(target));
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ASSERT_TRUE(isWhole(target));
        leftBehind += static_cast<int>(entriesIn(folder.path())) - 1;
    }
    RecordProperty("leftBehind", leftBehind);
    // Else no writer was ever killed while it was writing, and the test has shown nothing.
    EXPECT_GT(leftBehind, 0);
}

}  // namespace
}  // namespace tonquil
