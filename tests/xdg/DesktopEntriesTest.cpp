// SPDX-License-Identifier: MIT
#include "platform/xdg/DesktopEntries.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <vector>

#include "platform/xdg/AutostartLoginItem.h"
#include "platform/xdg/DesktopEntry.h"
#include "tests/files/FolderContents.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

void putProgram(const std::filesystem::path& file, const std::string& name) {
    putContents(file, "#!/bin/sh\necho \"" + name + " $#\"\n");
    std::filesystem::permissions(file, std::filesystem::perms{0755});
}

/// A user's folder of desktop files, the system's, and one for programs.
class DesktopEntriesTest : public testing::Test {
 protected:
    void put(const std::string& file, const std::string& lines) {
        std::filesystem::create_directory((_folder / file).parent_path());
        putContents(_folder / file, "[Desktop Entry]\nType=Application\n" + lines);
    }
    /// The name of the first that is installed of a.desktop and b.desktop; "-" for none.
    [[nodiscard]] std::string found() const {
        const std::array<std::string_view, 2> candidates = {"a.desktop", "b.desktop"};
        const auto program = DesktopEntries({.applications = {_folder / "own", _folder / "system"},
                                             .programs = {_folder.path()},
                                             .locale = {}})
                                 .firstInstalled(candidates);
        return program ? program->name : "-";
    }

    ScratchFolder _folder;
};

TEST_F(DesktopEntriesTest, PicksFirstInstalledCandidateThatWouldStart) {
    EXPECT_EQ(found(), "-");
    put("own/b.desktop", "Name=B\n");
    EXPECT_EQ(found(), "B");
    put("system/a.desktop", "Name=A\n");
    EXPECT_EQ(found(), "A");
    const std::string program = _folder / "a";
    putContents(_folder / "data", "no program");
    putProgram(program, "a");
    for (const auto& [lines, name] : Rows{{"Name=Own A\nHidden=true\n", "B"},
                                          {"Name=Own A\nHidden=maybe\nNoDisplay=true\n", "Own A"},
                                          {"Exec=a\n", "a"},
                                          {std::string(65537, '\n'), "B"},
                                          {"TryExec=missing\n", "B"},
                                          {"TryExec=data\n", "B"},
                                          {"TryExec=a\n", "a"},
                                          {"TryExec=" + program + "x\n", "B"},
                                          {"TryExec=" + program + "\n", "a"}}) {
        SCOPED_TRACE(lines);
        put("own/a.desktop", lines);
        EXPECT_EQ(found(), name);
    }
}

TEST(DesktopEntriesPlaces, TakeLanguageOfMessagesFromEnvironment) {
    ::setenv("LC_ALL", "", 1);
    ::setenv("LANG", "fr", 1);
    ::setenv("LC_MESSAGES", "de", 1);
    EXPECT_EQ(DesktopEntries::fromEnvironment().locale, "de");
    ::setenv("LC_ALL", "en", 1);
    EXPECT_EQ(DesktopEntries::fromEnvironment().locale, "en");
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        ::unsetenv(name);
    }
}

TEST(DesktopEntry, QuotesAnArgumentOfACommandLine) {
    for (const auto& [argument, quoted] : Rows{{"/a b/100%/x", R"(Exec="/a b/100%%/x")"},
                                               {R"(/"`$\)", R"(Exec="/\\"\\`\\$\\\\")"},
                                               {"/line\nbreak", R"(Exec="/line\nbreak")"}}) {
        DesktopEntry entry;
        entry.setValue("Exec", DesktopEntry::quotedArgument(argument));
        EXPECT_EQ(entry.text(), "[Desktop Entry]\n" + quoted + "\n");
    }
}

TEST(AutostartLoginItem, WritesAndRemovesDesktopFileAndSeesItDisabled) {
    const ScratchFolder folder;
    const std::filesystem::path launcher = folder / "a launcher";
    const std::filesystem::path file = folder / "config/autostart/tonquil.desktop";
    putProgram(launcher, "launcher");
    AutostartLoginItem item{file.parent_path(), launcher};
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(succeeded(item.setEnabled(false)));
    ASSERT_TRUE(succeeded(item.setEnabled(true)));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_EQ(DesktopEntry::read(file)->value("Exec"), "\"" + launcher.native() + "\"");
    EXPECT_EQ(DesktopEntry::read(file)->value("TryExec"), launcher.native());
    const std::string written = contentsOf(file);
    for (const std::string line : {"Hidden=", "X-GNOME-Autostart-enabled="}) {
        for (const bool isOn : {true, false}) {
            SCOPED_TRACE(line);
            putContents(file,
                        written + line + (isOn == (line == "Hidden=") ? "false\n" : "true\n"));
            EXPECT_EQ(item.isEnabled(), isOn);
        }
    }
    ASSERT_TRUE(succeeded(item.setEnabled(true)));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(succeeded(item.setEnabled(false)));
    EXPECT_FALSE(std::filesystem::exists(file));
    std::filesystem::remove(launcher);
    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_FALSE(item.isEnabled());
}

}  // namespace
}  // namespace tonquil
