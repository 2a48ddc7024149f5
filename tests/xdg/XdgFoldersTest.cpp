// SPDX-License-Identifier: MIT
#include "platform/folders/XdgFolders.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "tests/files/FolderContents.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using Variables = std::vector<std::pair<std::string, std::string>>;

/// The program's folders with these variables and no others that matter.
Result<XdgFolders> foldersWith(const Variables& variables) {
    for (const char* name :
         {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"}) {
        ::unsetenv(name);
    }
    for (const auto& [name, value] : variables) {
        ::setenv(name.c_str(), value.c_str(), 1);
    }
    auto folders = XdgFolders::fromEnvironment();
    ::unsetenv("TMPDIR");
    return folders;
}

TEST(XdgFolders, FollowAbsolutePathsInEnvironment) {
    const std::string home = ::getpwuid(::geteuid())->pw_dir;
    const std::vector<std::tuple<Variables, std::string, std::string>> rows = {
        {{{"XDG_CONFIG_HOME", "/c"}, {"XDG_STATE_HOME", "/s/"}}, "/c", "/s"},
        {{{"HOME", "/h"}, {"XDG_CONFIG_HOME", "c"}, {"XDG_STATE_HOME", ""}},
         "/h/.config",
         "/h/.local/state"},
        {{{"HOME", "here"}}, home + "/.config", home + "/.local/state"}};
    for (const auto& [variables, config, state] : rows) {
        SCOPED_TRACE(config);
        const auto folders = foldersWith(variables);
        ASSERT_TRUE(succeeded(folders));
        EXPECT_EQ(folders->config(), config + "/tonquil");
        EXPECT_EQ(folders->state(), state + "/tonquil");
    }
}

TEST(XdgFolders, HavePrivateRuntimeFolder) {
    const ScratchFolder folder;
    const std::string place = folder.path();
    const auto session = foldersWith({{"XDG_RUNTIME_DIR", place}, {"TMPDIR", "/nowhere"}});
    EXPECT_EQ(session->makeRuntime().value_or(""), folder / "tonquil");
    const auto folders = foldersWith({{"XDG_RUNTIME_DIR", place + "/gone"}, {"TMPDIR", place}});
    const auto own = folder / ("tonquil-" + std::to_string(::geteuid()));
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(folders->makeRuntime().value_or(""), own);
        EXPECT_EQ(std::filesystem::status(own).permissions(), std::filesystem::perms{0700});
    }
    // Others have created something there first.
    ::chmod(own.c_str(), 0755);
    EXPECT_FALSE(folders->makeRuntime());
    std::filesystem::remove(own);
    std::filesystem::create_directory_symlink(folder / "tonquil", own);
    EXPECT_FALSE(folders->makeRuntime());
    std::filesystem::remove(own);
    if (::geteuid() == 0) {
        ASSERT_TRUE(folders->makeRuntime());
        ASSERT_EQ(::chown(own.c_str(), 65534, 65534), 0);
        EXPECT_FALSE(folders->makeRuntime());
    }
}

}  // namespace
}  // namespace tonquil
