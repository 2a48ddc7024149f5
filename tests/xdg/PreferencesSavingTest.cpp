// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include "PreferencesBench.h"
#include "files/FileHandle.h"
#include "tests/support/OrdinaryUser.h"

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

/// What is set while nothing can be saved is kept, said once, and saved when it can be again.
void expectToSurvive(const std::filesystem::path& file, const std::function<void()>& obstruct,
                     const std::function<void()>& clear) {
    PreferencesProcess process(file);
    process.set("a", 1);
    process.set("b", 1);
    const std::string older = contentsOf(file);
    obstruct();
    process.set("a", 2);
    process.set("c", std::string(2000, 'c'));
    EXPECT_FALSE(process.store->synchronize());
    process.handleEvents();
    EXPECT_EQ(process["a"], 2);
    EXPECT_THAT(process.log, ElementsAre(HasSubstr("could not be saved")));
    EXPECT_EQ(contentsOf(file), older);
    clear();
    EXPECT_TRUE(process.store->synchronize());
    EXPECT_EQ(storedIn(file).value("a", 0), 2);
    EXPECT_TRUE(storedIn(file).contains("c"));
    obstruct();
    process.set("a", 3);
    EXPECT_EQ(process.log.size(), 2U) << "A new failure has a line of its own.";
    clear();
}

TEST(PreferencesSaving, OutlastsAFolderThatMayNotBeWrittenTo) {
    const OrdinaryUser user;
    const ScratchFolder folder;
    expectToSurvive(
        folder / "file", [&] { ::chmod(folder.path().c_str(), 0500); },
        [&] { ::chmod(folder.path().c_str(), 0700); });
}

TEST(PreferencesSaving, OutlastsAFullDisk) {
    const ScratchFolder folder;
    const auto disk = folder / "disk";
    std::filesystem::create_directory(disk);
    if (::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "This needs the right to mount a small disk.";
    }
    expectToSurvive(
        disk / "file", [&] { putContents(disk / "filler", std::string(100'000, 'x')); },
        [&] { std::filesystem::remove(disk / "filler"); });
    EXPECT_EQ(::umount(disk.c_str()), 0);
}

}  // namespace
}  // namespace tonquil
