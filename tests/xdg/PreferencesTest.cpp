// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <limits>

#include "PreferencesBench.h"
#include "files/FileHandle.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(PreferencesChanges, AreReadableAtOnceAndSavedAndReportedPerEvent) {
    const ScratchFolder folder;
    const auto file = folder / "made/config/preferences.plist";
    const mode_t umask = ::umask(0);
    PreferencesProcess process(file);
    ::umask(umask);
    process.store->registerDefaults({{"a", 10}, {"b", 20}});
    process.store->setValue("a", 1);
    process.store->setValue("c", std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(process["a"], 1);
    EXPECT_EQ(process["b"], 20);
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(process.loop.runPosted(), 1U);
    EXPECT_EQ(process.told, 1);
    EXPECT_EQ(storedIn(file).size(), 2U);
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
    EXPECT_EQ(std::filesystem::status(folder / "made").permissions(), std::filesystem::perms{0700});

    EXPECT_EQ(process.handleEvents(), 0) << "Its own save came back as a change.";
    std::filesystem::create_hard_link(file, folder / "older");
    const std::string older = contentsOf(file);
    process.set("a", 1);
    EXPECT_EQ(process.told, 2);
    EXPECT_EQ(std::filesystem::hard_link_count(file), 2U) << "Saved though nothing changed.";
    // A value equal to the default is stored when set, and the default shows when the value is
    // removed.
    process.set("b", 20);
    process.set("a", nullptr);
    EXPECT_EQ(process["a"], 10);
    EXPECT_EQ(storedIn(file).value("b", 0), 20);
    EXPECT_FALSE(storedIn(file).contains("a"));
    EXPECT_EQ(contentsOf(folder / "older"), older) << "Overwritten in place, which a kill halves.";
    EXPECT_THAT(process.log, IsEmpty());
}

TEST(PreferencesChanges, ReachEarlierSubscribersWhichMayDestroyStore) {
    const ScratchFolder folder;
    PreferencesProcess process(folder / "file");
    std::string calls;
    std::array<std::unique_ptr<PreferencesStore::Subscription>, 5> handles;
    const auto subscribe = [&](std::size_t index, std::function<void()> call) {
        handles.at(index) = process.store->subscribe(std::move(call));
    };
    process.store->setValue("early", 1);
    subscribe(0, [&] {
        calls += "l";
        if (process["answer"] == 0) {
            process.store->setValue("answer", 42);
        }
    });
    process.loop.runPosted();
    EXPECT_EQ(calls, "") << "The change was made before the subscription.";
    subscribe(1, [&] {
        calls += "e";
        handles[2].reset();
        subscribe(4, [&] { process.store.reset(); });
        handles[1].reset();
    });
    subscribe(2, [] { FAIL() << "It ended before it was its turn."; });
    subscribe(3, [&] { calls += "z"; });
    process.store->setValue("answer", 0);
    // The handler that sets a value causes a second round, which is the last.
    EXPECT_EQ(process.loop.runPosted(), 2U);
    EXPECT_EQ(calls, "lezlz");
    process.store->setValue("more", 1);
    process.loop.runPosted();
    EXPECT_EQ(calls, "lezlzlz");
    EXPECT_EQ(process.store, nullptr);

    PreferencesProcess other(folder / "file");
    other.store->setValue("a", 2);
    other.store.reset();
    EXPECT_EQ(storedIn(folder / "file").value("a", 0), 2) << "Its end saves what is waiting.";
    other.loop.runPosted();
    EXPECT_EQ(other.told, 0);
}

TEST(PreferencesChanges, AreSeenHoweverOtherProgramsMakeThem) {
    const ScratchFolder folder;
    const auto file = folder / "config/preferences.plist";
    PreferencesProcess process(file);
    process.store->registerDefaults({{"a", 10}});
    const auto expectTold = [&](int times, std::int64_t value) {
        EXPECT_EQ(process.handleEvents(), times);
        EXPECT_EQ(process["a"], value);
    };
    store(file, {{"a", 1}});
    expectTold(1, 1);
    // In place, with the same values.
    store(file, {{"a", 1}});
    expectTold(0, 1);
    store(folder / "config/other", {{"a", 2}});
    expectTold(0, 1);
    std::filesystem::rename(folder / "config/other", file);
    expectTold(1, 2);
    std::filesystem::remove(file);
    expectTold(1, 10);
    {
        std::ofstream written(file);
        // Not half of it.
        expectTold(0, 10);
        written << writePropertyList({{"a", 7}}).value();
    }
    expectTold(1, 7);
    // Another folder replaces the watched one.
    std::filesystem::rename(folder / "config", folder / "away");
    std::filesystem::create_directory(folder / "config");
    store(file, {{"a", 3}});
    expectTold(1, 3);
    store(folder / "away/preferences.plist", {{"a", 4}});
    expectTold(0, 3);
    // With the folder, the values go. While there is none, the store polls for it.
    std::filesystem::remove_all(folder / "config");
    expectTold(1, 10);
    std::filesystem::create_directory(folder / "config");
    store(file, {{"a", 6}});
    process.loop.advance(milliseconds(5500));
    expectTold(0, 6);
    // The parent folder is renamed, and takes the watched one along.
    std::filesystem::rename(folder.path(), folder.path().native() + "-away");
    std::filesystem::create_directories(folder / "config");
    store(file, {{"a", 8}});
    expectTold(1, 8);
    std::filesystem::remove_all(folder.path().native() + "-away");
    // A burst is read occasionally, and at its end.
    const int before = process.told;
    for (int number = 0; number <= 500; ++number) {
        store(file, {{"a", number}});
        process.loop.pollReadable(milliseconds(0));
        process.loop.advance(milliseconds(2));
    }
    EXPECT_LE(process.told - before, 3);
    EXPECT_LE(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 500);
    // Saving recreates and watches the folder.
    std::filesystem::remove_all(folder / "config");
    expectTold(1, 10);
    process.set("b", 1);
    EXPECT_EQ(storedIn(file), PropertyValue({{"b", 1}}));
    process.handleEvents();
    store(file, {{"a", 5}});
    expectTold(1, 5);
    EXPECT_EQ(process["b"], 0);
    EXPECT_THAT(process.log, IsEmpty());
}

TEST(PreferencesSaving, KeepsConcurrentChangesByOthers) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}, {"b", 1}, {"removed", 1}});
    PreferencesProcess first(file);
    PreferencesProcess second(file);
    // None of them handles its events before all have set something.
    first.set("a", 2);
    second.set("b", 2);
    second.set("removed", nullptr);
    first.set("d", 2);
    // For the same key, the last writer wins.
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

TEST(PreferencesSaving, AcceptsChangesDuringSlowSave) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    PreferencesProcess process(file);
    process.set("a", 1);
    process.disk.isHeldUp = true;
    process.set("a", 2);
    process.set("b", 2);
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 1}}));
    store(file, {{"a", 1}, {"c", 3}});
    process.handleEvents();
    process.disk.finish();
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 2}, {"b", 2}, {"c", 3}}));
    EXPECT_EQ(process["c"], 3);
    // What others save after us, before we learn that our save is done, wins.
    process.set("a", 4);
    process.disk.finish();
    store(file, {{"a", 5}});
    process.handleEvents();
    EXPECT_EQ(process["a"], 5);
}

TEST(PreferencesSaving, LosesNothingInSimultaneousSaves) {
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
            for (const std::string& line : process.log) {
                std::fputs((line + "\n").c_str(), stderr);
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

TEST(PreferencesSaving, WaitsForLockUntilTimeout) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    PreferencesProcess process(file);
    process.set("a", 1);
    FileHandle lock;
    const auto takeLock = [&] {
        lock = FileHandle(::open((folder / "file.lock").c_str(), O_RDWR | O_CLOEXEC));
        ASSERT_EQ(::flock(lock.get(), LOCK_EX | LOCK_NB), 0);
    };
    takeLock();
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

    takeLock();
    process.set("a", 3);
    process.store->synchronize();
    EXPECT_EQ(storedIn(file).value("a", 0), 3);
    EXPECT_THAT(process.log, ElementsAre(HasSubstr("locked by another program")));
}

TEST(PreferencesSaving, LeavesSettingUnchangedByUnstorableValue) {
    const ScratchFolder folder;
    PreferencesProcess process(folder / "file");
    process.set("a", 1);
    for (const PropertyValue& bad : {PropertyValue("\xFF"), PropertyValue{{"inner", nullptr}},
                                     PropertyValue(std::string(std::size_t{5} << 20U, 'x'))}) {
        process.set("a", bad);
        EXPECT_EQ(process["a"], 1);
    }
    process.set("\x01", 1);
    EXPECT_EQ(process.told, 1);
    EXPECT_EQ(process.log.size(), 2U) << "One line for each key.";
    process.set("b", 2);
    EXPECT_FALSE(process.store->synchronize());
    process.set("a", 1);
    process.set("\x01", nullptr);
    EXPECT_TRUE(process.store->synchronize());
    EXPECT_EQ(storedIn(folder / "file"), PropertyValue({{"a", 1}, {"b", 2}}));
}

}  // namespace
}  // namespace tonquil
