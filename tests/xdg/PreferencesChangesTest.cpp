// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include <fstream>
#include <limits>

#include "PreferencesBench.h"

namespace tonquil {
namespace {

TEST(PreferencesChanges, OfOneEventAreReadableAtOnceAndSavedAndToldTogether) {
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
    const auto saved = std::filesystem::last_write_time(file);
    process.set("a", 1);
    EXPECT_EQ(process.told, 2);
    EXPECT_EQ(std::filesystem::last_write_time(file), saved);

    // A default is stored when it is set, and shows when what is stored is taken away.
    process.set("b", 20);
    process.set("a", nullptr);
    EXPECT_EQ(process["a"], 10);
    EXPECT_EQ(storedIn(file).value("b", 0), 20);
    EXPECT_FALSE(storedIn(file).contains("a"));
    EXPECT_THAT(process.log, testing::IsEmpty());
}

TEST(PreferencesChanges, AreToldToThoseWhoSubscribedBeforeThem) {
    const ScratchFolder folder;
    PreferencesProcess process(folder / "file");
    std::string calls;
    std::unique_ptr<PreferencesStore::Subscription> ending;
    std::unique_ptr<PreferencesStore::Subscription> ended;
    std::unique_ptr<PreferencesStore::Subscription> added;
    process.store->setValue("early", 1);
    const auto late = process.store->subscribe([&] {
        calls += "l";
        if (process["answer"] == 0) {
            process.store->setValue("answer", 42);
        }
    });
    process.loop.runPosted();
    EXPECT_EQ(calls, "") << "The change was made before the subscription.";
    EXPECT_EQ(process.told, 1);

    ending = process.store->subscribe([&] {
        calls += "e";
        ending.reset();
        ended.reset();
        added = process.store->subscribe([&] { calls += "a"; });
    });
    ended = process.store->subscribe([&] { calls += "x"; });
    const auto last = process.store->subscribe([&] { calls += "z"; });
    process.store->setValue("answer", 0);
    // The handler that sets a value makes a second round, which ends.
    EXPECT_EQ(process.loop.runPosted(), 2U);
    EXPECT_EQ(calls, "lezlz");
    process.set("more", 1);
    EXPECT_EQ(calls, "lezlzlza");
}

TEST(PreferencesChanges, MayEndTheStoreAndSubscriptionsOutliveIt) {
    const ScratchFolder folder;
    PreferencesProcess process(folder / "file");
    bool isToldLater = false;
    const auto ender = process.store->subscribe([&] { process.store.reset(); });
    const auto later = process.store->subscribe([&] { isToldLater = true; });
    process.store->setValue("a", 1);
    process.loop.runPosted();
    EXPECT_FALSE(isToldLater);

    PreferencesProcess other(folder / "file");
    other.store->setValue("a", 2);
    other.store.reset();
    EXPECT_EQ(storedIn(folder / "file").value("a", 0), 2) << "Its end saves what is waiting.";
    other.loop.runPosted();
    EXPECT_EQ(other.told, 0);
}

TEST(PreferencesChanges, OfOtherProgramsAreSeenWhicheverWayTheyAreMade) {
    const ScratchFolder folder;
    const auto file = folder / "config/preferences.plist";
    PreferencesProcess process(file);
    process.store->registerDefaults({{"a", 10}});

    store(file, {{"a", 1}});
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 1);
    // In place, with the same values.
    store(file, {{"a", 1}});
    EXPECT_EQ(process.handleEvents(), 0);
    store(folder / "config/other", {{"a", 2}});
    EXPECT_EQ(process.handleEvents(), 0);
    std::filesystem::rename(folder / "config/other", file);
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 2);
    std::filesystem::remove(file);
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 10);
    {
        std::ofstream written(file);
        // Not half of it.
        EXPECT_EQ(process.handleEvents(), 0);
        written << writePropertyList({{"a", 7}}).value();
    }
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 7);

    // Another folder takes the place of the watched one.
    std::filesystem::rename(folder / "config", folder / "away");
    std::filesystem::create_directory(folder / "config");
    store(file, {{"a", 3}});
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 3);
    store(folder / "away/preferences.plist", {{"a", 4}});
    EXPECT_EQ(process.handleEvents(), 0);

    // With the folder, the values go; it is made again and watched when something is saved.
    std::filesystem::remove_all(folder / "config");
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 10);
    process.set("b", 1);
    EXPECT_EQ(storedIn(file), PropertyValue({{"b", 1}}));
    process.handleEvents();
    store(file, {{"a", 5}});
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 5);
    EXPECT_EQ(process["b"], 0);
    EXPECT_THAT(process.log, testing::IsEmpty());
}

}  // namespace
}  // namespace tonquil
