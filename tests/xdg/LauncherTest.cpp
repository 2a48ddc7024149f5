// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/files/FolderContents.h"
#include "tests/support/ProcessRunner.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

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
