// SPDX-License-Identifier: MIT
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "PreferencesBench.h"
#include "files/FileHandle.h"

namespace tonquil {
namespace {

/// Counts up in the settings for ever, and tells of each number that was saved.
[[noreturn]] void countUp(const std::filesystem::path& file, int round, int tell) {
    PreferencesProcess process(file);
    process.store->setValue("round " + std::to_string(round), round);
    for (std::int64_t count = process["count"] + 1;; ++count) {
        process.store->setValue("count", count);
        process.store->setValue("same", count);
        process.loop.runPosted();
        if (::write(tell, &count, sizeof count) != sizeof count) {
            ::_exit(1);
        }
    }
}

TEST(PreferencesCrash, LosesNothingThatWasSavedHoweverOftenItsWriterIsKilled) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    int killedWhileWriting = 0;
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const FileHandle reading(ends[0]);
        FileHandle writing(ends[1]);
        const pid_t child = ::fork();
        if (child == 0) {
            countUp(file, round, writing.get());
        }
        ASSERT_EQ(writing.close(), 0);
        std::int64_t count = 0;
        // The first save works in spite of what the killed one before may have left behind.
        EXPECT_EQ(::read(reading.get(), &count, sizeof count), sizeof count);
        for (int reads = round % 23; reads > 0; --reads) {
            EXPECT_TRUE(storedIn(file).is_object());
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        while (::read(reading.get(), &count, sizeof count) == sizeof count) {
        }
        const PropertyValue stored = storedIn(file);
        ASSERT_TRUE(stored.is_object());
        EXPECT_GE(stored.value("count", 0), count);
        EXPECT_EQ(stored.value("same", -1), stored.value("count", 0));
        for (int older = 0; older <= round; ++older) {
            EXPECT_EQ(stored.value("round " + std::to_string(older), -1), older);
        }
        killedWhileWriting += std::filesystem::exists(folder / ".file.tonquil-new") ? 1 : 0;
    }
    // Else no writer was ever killed while it was writing, and the test has shown nothing.
    EXPECT_GT(killedWhileWriting, 0);
}

}  // namespace
}  // namespace tonquil
