// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include "PreferencesBench.h"
#include "platform/xdg/CurveRecoveryFile.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

/// The contents of all files that were moved aside.
std::vector<std::string> movedAside(const ScratchFolder& folder) {
    std::vector<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        const std::string name = entry.path().filename();
        if (name.starts_with("file.damaged-")) {
            contents.push_back(contentsOf(entry.path()));
        }
    }
    return contents;
}

TEST(DamagedPreferences, AreMovedAsideUntouchedAtTheStart) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    // All within a second or two, so that names meet.
    const std::vector<std::string> rows = {"", "no list",
                                           writePropertyList({{"a", 1}}).value().substr(0, 200),
                                           writePropertyList(PropertyValue::array({1})).value(),
                                           std::string((std::size_t{4} << 20U) + 1, ' ')};
    for (const std::string& row : rows) {
        SCOPED_TRACE(row.substr(0, 20));
        putContents(file, row);
        PreferencesProcess process(file);
        process.store->registerDefaults({{"a", 10}});
        EXPECT_EQ(process["a"], 10);
        EXPECT_FALSE(std::filesystem::exists(file));
        EXPECT_THAT(process.log, ElementsAre(AllOf(HasSubstr("file "), HasSubstr(".damaged-"))));
        process.set("b", 2);
        process.handleEvents();
        EXPECT_EQ(storedIn(file), PropertyValue({{"b", 2}}));
        EXPECT_EQ(process.log.size(), 1U);
    }
    EXPECT_THAT(movedAside(folder), UnorderedElementsAreArray(rows));
}

TEST(DamagedPreferences, ChangeNothingWhileRunningUntilSomethingMustBeSaved) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}, {"b", 1}});
    PreferencesProcess process(file);
    const std::string whole = contentsOf(file);
    // An editor that saves in place, seen half-way twice.
    for (const std::size_t length : {std::size_t{0}, whole.size() / 2}) {
        putContents(file, whole.substr(0, length));
        EXPECT_EQ(process.handleEvents(), 0);
    }
    EXPECT_EQ(process["a"], 1);
    EXPECT_EQ(process.log.size(), 1U);
    EXPECT_THAT(movedAside(folder), IsEmpty());
    store(file, {{"a", 2}, {"b", 1}});
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 2);

    putContents(file, "half");
    process.handleEvents();
    process.set("c", 3);
    process.handleEvents();
    EXPECT_THAT(movedAside(folder), ElementsAre("half"));
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 2}, {"b", 1}, {"c", 3}}));
    EXPECT_EQ(process.log.size(), 3U);
}

TEST(UnreadablePreferences, StayWhereTheyAre) {
    const OrdinaryUser user;
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}});
    // It may be written to, so replacing it would work.
    ::chmod(file.c_str(), 0200);
    PreferencesProcess process(file);
    EXPECT_EQ(process["a"], 0);
    EXPECT_THAT(process.log, ElementsAre(HasSubstr("not readable")));
    process.set("b", 2);
    process.set("b", 3);
    EXPECT_THAT(process.log, ElementsAre(testing::_, HasSubstr("not saved")));
    ::chmod(file.c_str(), 0600);
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 1);
    EXPECT_TRUE(process.store->synchronize());
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 1}, {"b", 3}}));

    // What cannot be written is kept in memory until it can, with a line for each trouble.
    for (const int number : {3, 4}) {
        ::chmod(folder.path().c_str(), 0500);
        process.set("a", number);
        process.set("c", 1);
        EXPECT_FALSE(process.store->synchronize());
        EXPECT_EQ(process.log.size(), static_cast<std::size_t>(number));
        EXPECT_NE(storedIn(file)["a"], number);
        ::chmod(folder.path().c_str(), 0700);
        EXPECT_TRUE(process.store->synchronize());
        EXPECT_EQ(storedIn(file)["a"], number);
    }
}

const PropertyValue curves = {{"display", {{"white", 0.25}, {"flags", {1, 2}}}}};

TEST(CurveRecoveryFile, GivesTheNextRunWhatWasKeptLastAndNotForgotten) {
    const ScratchFolder folder;
    const auto file = folder / "state/recovery.plist";
    const Log fail = [](std::string_view line) { ADD_FAILURE() << line; };
    CurveRecoveryFile(file, fail).forget();
    EXPECT_EQ(CurveRecoveryFile(file, fail).leftCurves(), PropertyValue::object());
    EXPECT_TRUE(succeeded(CurveRecoveryFile(file, fail).keep({{"older", 1}})));
    EXPECT_TRUE(succeeded(CurveRecoveryFile(file, fail).keep(curves)));
    EXPECT_EQ(CurveRecoveryFile(file, fail).leftCurves(), curves);
    // What a killed program leaves goes as well.
    putContents(folder / "state/.recovery.plist.tonquil-new", "half");
    CurveRecoveryFile(file, fail).forget();
    EXPECT_EQ(entriesIn(folder / "state"), 0);
}

TEST(CurveRecoveryFile, MovesADamagedFileAsideAndKeepsOneThatItCannotReplace) {
    const OrdinaryUser user;
    const ScratchFolder folder;
    std::vector<std::string> log;
    CurveRecoveryFile recovery(folder / "recovery.plist",
                               [&](std::string_view line) { log.emplace_back(line); });
    putContents(folder / "recovery.plist", "damaged");
    EXPECT_EQ(recovery.leftCurves(), PropertyValue::object());
    const auto aside = std::filesystem::directory_iterator(folder.path())->path();
    EXPECT_THAT(log, ElementsAre(HasSubstr("kept as " + aside.native())));
    EXPECT_EQ(contentsOf(aside), "damaged");
    EXPECT_TRUE(succeeded(recovery.keep(curves)));
    ::chmod(folder.path().c_str(), 0500);
    EXPECT_FALSE(recovery.keep({{"newer", 1}}));
    recovery.forget();
    ::chmod(folder.path().c_str(), 0700);
    EXPECT_EQ(recovery.leftCurves(), curves);
    EXPECT_THAT(log.back(), HasSubstr("could not be removed"));
}

}  // namespace
}  // namespace tonquil
