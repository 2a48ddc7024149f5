// SPDX-License-Identifier: MIT
#include "platform/xdg/DesktopEntries.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "platform/xdg/AutostartLoginItem.h"
#include "platform/xdg/DesktopEntry.h"
#include "tests/files/FolderContents.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

/// A person's folder of desktop files, the system's, and one for programs.
class DesktopEntriesTest : public testing::Test {
 protected:
    void SetUp() override {
        for (const char* folder : {"own", "system", "bin"}) {
            std::filesystem::create_directory(_folder / folder);
        }
    }
    void put(const std::string& file, const std::string& lines) {
        putContents(_folder / file, "[Desktop Entry]\nType=Application\n" + lines);
    }
    /// The name of the first that is installed of a.desktop and b.desktop; "-" for none.
    [[nodiscard]] std::string found(const std::string& locale = "") const {
        const DesktopEntries entries({.applications = {_folder / "own", _folder / "system"},
                                      .programs = {_folder / "bin"},
                                      .locale = locale});
        const std::array<std::string_view, 2> candidates = {"a.desktop", "b.desktop"};
        const auto program = entries.firstInstalled(candidates);
        return program ? program->name : "-";
    }

    ScratchFolder _folder;
};

TEST_F(DesktopEntriesTest, TakesTheFirstCandidateThatIsInstalled) {
    EXPECT_EQ(found(), "-");
    put("own/b.desktop", "Name=B\n");
    EXPECT_EQ(found(), "B");
    put("system/a.desktop", "Name=A\n");
    EXPECT_EQ(found(), "A");
    put("own/a.desktop", "Name=Own A\n");
    EXPECT_EQ(found(), "Own A");
    put("own/a.desktop", "Name=Own A\nHidden=true\n");
    EXPECT_EQ(found(), "B");
    put("own/a.desktop", "Name=Own A\nHidden=maybe\nNoDisplay=true\n");
    EXPECT_EQ(found(), "Own A");
    put("own/a.desktop", "Exec=a\n");
    EXPECT_EQ(found(), "a");
    putContents(_folder / "own/a.desktop", std::string(65537, '\n'));
    EXPECT_EQ(found(), "B");
}

TEST_F(DesktopEntriesTest, PassesByAProgramThatWouldNotStart) {
    const std::filesystem::path program = _folder / "bin/a";
    for (const std::string& tried : {std::string("a"), program.native()}) {
        SCOPED_TRACE(tried);
        std::filesystem::remove(program);
        put("own/a.desktop", "Name=A\nTryExec=" + tried + "\n");
        EXPECT_EQ(found(), "-");
        putContents(program, "#!/bin/sh\n");
        EXPECT_EQ(found(), "-");
        std::filesystem::permissions(program, std::filesystem::perms{0755});
        EXPECT_EQ(found(), "A");
    }
}

TEST_F(DesktopEntriesTest, NamesAProgramInThePersonsLanguage) {
    put("own/a.desktop",
        "Name=plain\nName[de]=de\nName[de_AT]=de_AT\nName[de@x]=de@x\nName[sr_RS@latin]=latin\n"
        "[Other]\nName[fr]=another group's\n[Desktop Entry]\nName[pt_BR] = spaced \n# "
        "Name[nl]=no\n");
    const std::vector<std::pair<std::string, std::string>> rows = {{"", "plain"},
                                                                   {"C.UTF-8", "plain"},
                                                                   {"fr_FR.UTF-8", "plain"},
                                                                   {"nl", "plain"},
                                                                   {"de", "de"},
                                                                   {"de_DE.UTF-8", "de"},
                                                                   {"de_AT@x", "de_AT"},
                                                                   {"de_DE.UTF-8@x", "de@x"},
                                                                   {"sr_RS@latin", "latin"},
                                                                   {"sr_RS", "plain"},
                                                                   {"pt_BR", "spaced"}};
    for (const auto& [locale, name] : rows) {
        SCOPED_TRACE(locale);
        EXPECT_EQ(found(locale), name);
    }
}

TEST(DesktopEntry, UndoesEscapesAndKeepsTheFirstOfARepeatedKey) {
    const auto entry = DesktopEntry::parse(
        "Name=before any group\n[Desktop Entry]\r\nName=a\\sb\\\\c\\n\\td\\x\\\r\nName=again\n"
        "no entry\n=\nIcon=");
    EXPECT_EQ(entry.value("Name"), "a b\\c\n\td\\x\\");
    EXPECT_EQ(entry.value("Icon"), "");
    EXPECT_EQ(entry.value("Exec"), "");
}

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
