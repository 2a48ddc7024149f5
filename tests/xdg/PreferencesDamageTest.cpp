// SPDX-License-Identifier: MIT
#include <sys/stat.h>

#include "PreferencesBench.h"
#include "tests/support/OrdinaryUser.h"

namespace tonquil {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::UnorderedElementsAreArray;

/// The contents of all files that were moved aside.
std::vector<std::string> movedAside(const ScratchFolder& folder) {
    std::vector<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
        const std::string name = entry.path().filename();
        if (name.starts_with("file.damaged")) {
            EXPECT_THAT(name, MatchesRegex("file.damaged-[0-9]{8}T[0-9]{6}Z(-[0-9]+)?"));
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

TEST(DamagedPreferences, ThatOnlyMayNotBeReadStayWhereTheyAre) {
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
    EXPECT_EQ(process["b"], 3);
    EXPECT_THAT(process.log, ElementsAre(testing::_, HasSubstr("not saved")));
    ::chmod(file.c_str(), 0600);
    EXPECT_EQ(process.handleEvents(), 1);
    EXPECT_EQ(process["a"], 1);
    process.store->synchronize();
    EXPECT_EQ(storedIn(file), PropertyValue({{"a", 1}, {"b", 3}}));

    std::filesystem::create_directories(folder / "folder/file");
    PreferencesProcess other(folder / "folder");
    other.set("b", 2);
    EXPECT_THAT(other.log, ElementsAre(HasSubstr("is a folder"), HasSubstr("not saved")));
    EXPECT_TRUE(std::filesystem::is_directory(folder / "folder/file"));
}

}  // namespace
}  // namespace tonquil
