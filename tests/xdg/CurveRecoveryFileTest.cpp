// SPDX-License-Identifier: MIT
#include "platform/xdg/CurveRecoveryFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "tests/files/FolderContents.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

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
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms{0600});
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
    EXPECT_FALSE(recovery.keep(PropertyValue::array()));
    ::chmod(folder.path().c_str(), 0500);
    EXPECT_FALSE(recovery.keep({{"newer", 1}}));
    recovery.forget();
    ::chmod(folder.path().c_str(), 0700);
    EXPECT_EQ(recovery.leftCurves(), curves);
    EXPECT_THAT(log.back(), HasSubstr("could not be removed"));
}

}  // namespace
}  // namespace tonquil
