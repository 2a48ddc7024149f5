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

TEST(DamagedPreferences, AreMovedAsideIntactAtStartup) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    // All within a second or two, so that names collide.
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

TEST(DamagedPreferences, AreIgnoredAtRunTimeUntilNextSave) {
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}, {"b", 1}});
    PreferencesProcess process(file);
    const std::string whole = contentsOf(file);
    // An editor that saves in place, caught midway twice.
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

TEST(UnreadablePreferences, StayInPlace) {
    const OrdinaryUser user;
    const ScratchFolder folder;
    const auto file = folder / "file";
    store(file, {{"a", 1}});
    // The file is writable, so replacing it would succeed.
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

    // What cannot be written is kept in memory until it can, with one log line per failure.
    for (const int number : {3, 4}) {
        ::chmod(folder.path().c_str(), 0500);
        process.set("a", number);
        process.set("c", 1);
        EXPECT_FALSE(process.store->synchronize());
        EXPECT_EQ(process.log.size(), static_cast<std::size_t>(number));
        EXPECT_NE(storedIn(file)["a"], number);
        EXPECT_TRUE(process.sign);
        ::chmod(folder.path().c_str(), 0700);
        process.loop.advance(std::chrono::seconds(2));
        EXPECT_EQ(storedIn(file)["a"], number);
        EXPECT_FALSE(process.sign);
    }
}

const PropertyValue curves = {{"display", {{"white", 0.25}, {"flags", {1, 2}}}}};

/// A recovery file in a run of its own.
struct RecoveryRun {
    explicit RecoveryRun(const std::filesystem::path& path)
        : file(path, loop, disk,
               {.log = [this](std::string_view line) { log.emplace_back(line); },
                .showProblem = [this](const auto& problem) { sign = problem.has_value(); }}) {}

    ManualRunLoop loop;
    ManualDisk disk;
    std::vector<std::string> log;
    bool sign = false;
    CurveRecoveryFile file;
};

TEST(CurveRecoveryFile, RestoresLastStoredCurvesUnlessForgotten) {
    const ScratchFolder folder;
    const auto path = folder / "state/recovery.plist";
    RecoveryRun run(path);
    run.file.forget();
    EXPECT_EQ(RecoveryRun(path).file.leftCurves(), PropertyValue::object());
    run.file.keep({{"older", 1}});
    run.file.keep(curves);
    EXPECT_EQ(RecoveryRun(path).file.leftCurves(), curves);
    // The remains of a killed program are removed as well.
    putContents(folder / "state/.recovery.plist.tonquil-new", "half");
    run.file.forget();
    EXPECT_EQ(entriesIn(folder / "state"), 0);
    EXPECT_THAT(run.log, IsEmpty());
}

TEST(CurveRecoveryFile, MovesDamagedFileAsideAndRetriesFailedWrites) {
    const OrdinaryUser user;
    const ScratchFolder folder;
    RecoveryRun run(folder / "recovery.plist");
    putContents(folder / "recovery.plist", "damaged");
    EXPECT_EQ(run.file.leftCurves(), PropertyValue::object());
    const auto aside = std::filesystem::directory_iterator(folder.path())->path();
    EXPECT_THAT(run.log, ElementsAre(HasSubstr("kept as " + aside.native())));
    EXPECT_EQ(contentsOf(aside), "damaged");
    run.file.keep(curves);
    ::chmod(folder.path().c_str(), 0500);
    run.file.keep({{"newer", 1}});
    run.loop.advance(std::chrono::seconds(10));
    EXPECT_EQ(run.log.size(), 2U);
    EXPECT_TRUE(run.sign);
    EXPECT_EQ(run.file.leftCurves(), curves);
    ::chmod(folder.path().c_str(), 0700);
    run.loop.advance(std::chrono::seconds(2));
    EXPECT_EQ(run.file.leftCurves(), PropertyValue({{"newer", 1}}));
    EXPECT_FALSE(run.sign);
}

}  // namespace
}  // namespace tonquil
