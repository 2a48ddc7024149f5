// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "PreferencesBench.h"
#include "files/FileHandle.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(PreferencesSaving, KeepsWhatOthersHaveDoneMeanwhile) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}, {"b", 1}, {"removed", 1}});
    PreferencesProcess first(file);
    PreferencesProcess second(file);
    // None of them looks at the events before all have set something.
    first.set("a", 2);
    second.set("b", 2);
    second.set("removed", nullptr);
    first.set("d", 2);
    // Of one key, the last word counts.
    second.set("a", 5);
    const PropertyValue expected = {{"a", 5}, {"b", 2}, {"d", 2}};
    EXPECT_EQ(storedIn(file), expected);
    for (PreferencesProcess* process : {&first, &second}) {
        process->handleEvents();
        for (const auto& [key, value] : expected.items()) {
            EXPECT_EQ((*process)[key], value) << key;
        }
        EXPECT_EQ(process->handleEvents(), 0);
    }
}

TEST(PreferencesSaving, LosesNothingWhenProcessesSaveAtOnce) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    constexpr int saves = 50;
    std::vector<pid_t> children;
    for (const char* name : {"left ", "right "}) {
        children.push_back(::fork());
        if (children.back() == 0) {
            PreferencesProcess process(file, std::chrono::minutes(1));
            for (int number = 0; number < saves; ++number) {
                process.store->setValue(name + std::to_string(number), number);
                process.store->synchronize();
            }
            ::_exit(process.log.empty() ? 0 : 1);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(storedIn(file).size(), 2U * saves);
}

TEST(PreferencesSaving, WaitsForAnothersLockButNotForEver) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    PreferencesProcess process(file);
    process.set("a", 1);
    FileHandle lock(::open((folder / "file.lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX | LOCK_NB), 0);
    process.set("a", 2);
    process.loop.advance(milliseconds(5000));
    EXPECT_EQ(process["a"], 2);
    EXPECT_EQ(process.told, 2) << "A change is told when it is made, saved or not.";
    EXPECT_EQ(storedIn(file).value("a", 0), 1);
    store(file, {{"a", 1}, {"b", 7}});
    ASSERT_EQ(lock.close(), 0);
    process.loop.advance(milliseconds(1000));
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 2}, {"b", 7}}));
    EXPECT_THAT(process.log, IsEmpty());

    lock = FileHandle(::open((folder / "file.lock").c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(::flock(lock.get(), LOCK_EX | LOCK_NB), 0);
    process.set("a", 3);
    process.store->synchronize();
    EXPECT_EQ(storedIn(file).value("a", 0), 3);
    EXPECT_THAT(process.log, ElementsAre(HasSubstr("locked by another program")));
}

TEST(PreferencesSaving, LeavesASettingThatNoFileCanHoldAsItWas) {
    const ScratchFolder folder;
    PreferencesProcess process(folder / "file");
    process.set("a", 1);
    const int told = process.told;
    process.set("a", "\xFF");
    process.set("a", {{"inner", nullptr}});
    process.set("a", std::string(std::size_t{5} << 20U, 'x'));
    process.set("\x01", 1);
    EXPECT_EQ(process["a"], 1);
    EXPECT_EQ(process.told, told);
    EXPECT_EQ(process.log.size(), 2U) << "One line for each key.";
    process.set("b", 2);
    EXPECT_FALSE(process.store->synchronize());
    process.set("a", 1);
    process.set("\x01", nullptr);
    EXPECT_TRUE(process.store->synchronize());
    EXPECT_EQ(storedIn(folder / "file"), PropertyValue({{"a", 1}, {"b", 2}}));
}

TEST(PreferencesSaving, OutlastsAFullDisk) {
    const ScratchFolder folder;
    const auto disk = folder / "disk";
    std::filesystem::create_directory(disk);
    if (::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "This needs the right to mount a small disk.";
    }
    const auto fill = [&] { putContents(disk / "filler", std::string(100'000, 'x')); };
    {
        PreferencesProcess process(disk / "file");
        process.set("a", 1);
        const std::string older = contentsOf(disk / "file");
        fill();
        process.set("a", 2);
        process.set("c", std::string(2000, 'c'));
        EXPECT_FALSE(process.store->synchronize());
        process.handleEvents();
        EXPECT_EQ(process["a"], 2);
        EXPECT_THAT(process.log, ElementsAre(HasSubstr("could not be saved")));
        EXPECT_EQ(contentsOf(disk / "file"), older);
        std::filesystem::remove(disk / "filler");
        EXPECT_TRUE(process.store->synchronize());
        EXPECT_EQ(storedIn(disk / "file").value("a", 0), 2);
        EXPECT_TRUE(storedIn(disk / "file").contains("c"));
        fill();
        process.set("a", 3);
        EXPECT_EQ(process.log.size(), 2U) << "A new failure has a line of its own.";
        std::filesystem::remove(disk / "filler");
    }
    EXPECT_EQ(::umount(disk.c_str()), 0);
}

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
