// SPDX-License-Identifier: MIT
#include "platform/xdg/AutostartLoginItem.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/xdg/DesktopEntry.h"
#include "tests/files/FolderContents.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

class AutostartLoginItemTest : public testing::Test {
 protected:
    void SetUp() override {
        putContents(_launcher, "#!/bin/sh\n");
        std::filesystem::permissions(_launcher, std::filesystem::perms{0755});
    }

    ScratchFolder _folder;
    std::filesystem::path _launcher = _folder / "a launcher";
    std::filesystem::path _file = _folder / "config/autostart/tonquil.desktop";
    AutostartLoginItem _item{_file.parent_path(), _launcher};
};

TEST_F(AutostartLoginItemTest, WritesAndRemovesTheDesktopFile) {
    EXPECT_FALSE(_item.isEnabled());
    EXPECT_TRUE(succeeded(_item.setEnabled(false)));
    for (int time = 0; time < 2; ++time) {
        EXPECT_TRUE(succeeded(_item.setEnabled(true)));
        EXPECT_TRUE(_item.isEnabled());
    }
    const auto entry = DesktopEntry::read(_file);
    ASSERT_TRUE(succeeded(entry));
    EXPECT_EQ(entry->value("Exec"), "\"" + _launcher.native() + "\"");
    EXPECT_TRUE(succeeded(_item.setEnabled(false)));
    EXPECT_FALSE(_item.isEnabled());
    EXPECT_FALSE(std::filesystem::exists(_file));
    std::filesystem::remove(_launcher);
    EXPECT_FALSE(_item.setEnabled(true));
    EXPECT_FALSE(_item.isEnabled());
}

TEST_F(AutostartLoginItemTest, IsOffWhereTheDesktopSwitchedItOff) {
    ASSERT_TRUE(succeeded(_item.setEnabled(true)));
    const std::string written = contentsOf(_file);
    for (const auto& [line, isEnabled] :
         std::vector<std::pair<std::string, bool>>{{"Hidden=true\n", false},
                                                   {"Hidden=false\n", true},
                                                   {"X-GNOME-Autostart-enabled=false\n", false},
                                                   {"X-GNOME-Autostart-enabled=true\n", true}}) {
        SCOPED_TRACE(line);
        putContents(_file, written + line);
        EXPECT_EQ(_item.isEnabled(), isEnabled);
    }
    putContents(_file, written + "Hidden=true\n");
    ASSERT_TRUE(succeeded(_item.setEnabled(true)));
    EXPECT_TRUE(_item.isEnabled());
}

TEST(DesktopEntry, QuotesAnArgumentTwiceOver) {
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"/usr/bin/x", R"("/usr/bin/x")"},
        {"/a b/100%/x", R"("/a b/100%%/x")"},
        {R"(/"`$\)", R"("/\\"\\`\\$\\\\")"},
        {"/line\nbreak", R"("/line\nbreak")"}};
    for (const auto& [argument, quoted] : rows) {
        SCOPED_TRACE(argument);
        EXPECT_EQ(DesktopEntry::quotedArgument(argument), quoted);
    }
}

void putProgram(const std::filesystem::path& file, const std::string& name) {
    putContents(file, "#!/bin/sh\necho \"" + name + " $#\"\n");
    std::filesystem::permissions(file, std::filesystem::perms{0755});
}

TEST(Launcher, StartsTheProgramBesideItAndElseTheOneInPath) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "path");
    const auto launcher = folder / "tonquil-launcher";
    std::filesystem::copy_file(TONQUIL_LAUNCHER, launcher);
    const auto output = [&] {
        const auto ended = run({.command = {launcher, "--ignored"},
                                .environment = {{"PATH", (folder / "path").native()}}});
        return ended ? ended->standardOutput + ended->standardError : "";
    };
    EXPECT_NE(output().find("Tonquil could not be started"), std::string::npos);
    putProgram(folder / "path/tonquil", "from PATH");
    EXPECT_EQ(output(), "from PATH 0\n");
    putProgram(folder / "tonquil", "beside");
    EXPECT_EQ(output(), "beside 0\n");
}

}  // namespace
}  // namespace tonquil
