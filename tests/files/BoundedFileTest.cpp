// SPDX-License-Identifier: MIT
#include "files/BoundedFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "FolderContents.h"
#include "tests/support/OrdinaryUser.h"

namespace tonquil {
namespace {

std::string problemWith(const std::filesystem::path& path, std::size_t mostBytes = 1024) {
    const auto bytes = readBoundedFile(path, mostBytes);
    return bytes ? "none" : bytes.error().sentence;
}

TEST(BoundedFile, ReadsUpToTheLimitWhateverSizeTheFileClaims) {
    const ScratchFolder folder;
    const std::string contents(200'000, 'x');
    putContents(folder / "file", contents);
    std::filesystem::create_symlink("file", folder / "link");
    const auto bytes = readBoundedFile(folder / "link", contents.size());
    ASSERT_TRUE(bytes) << bytes.error().sentence;
    EXPECT_EQ(std::string(bytes->begin(), bytes->end()), contents);
    const std::string name = (folder / "file").native();
    EXPECT_EQ(problemWith(name, contents.size() - 1), name + " is larger than 199999 bytes.");
    std::filesystem::resize_file(name, std::uintmax_t{1} << 40U);  // sparse
    EXPECT_EQ(problemWith(name), name + " is larger than 1 KiB.");
    // Files in /proc claim no size at all.
    EXPECT_EQ(problemWith("/proc/self/status", 10), "/proc/self/status is larger than 10 bytes.");
    EXPECT_EQ(problemWith("/proc/self/status", 100'000), "none");
}

TEST(BoundedFile, RefusesWhatIsNoRegularFileWithoutWaitingForIt) {
    const ScratchFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::vector<std::pair<std::filesystem::path, const char*>> rows = {
        {folder / "pipe", "pipe is not a regular file."},
        {"/dev/zero", "/dev/zero is not a regular file."},
        {folder.path(), " is a folder, not a file."},
        {folder / "none", "No such file: "},
        {std::string("/proc/self/status\0", 18), "has a NUL in it"}};
    for (const auto& [path, words] : rows) {
        EXPECT_NE(problemWith(path).find(words), std::string::npos) << problemWith(path);
    }
    putContents(folder / "secret", "x");
    std::filesystem::permissions(folder / "secret", std::filesystem::perms::none);
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    const OrdinaryUser user;
    EXPECT_TRUE(problemWith(folder / "secret").ends_with(" is not readable by you."));
}

}  // namespace
}  // namespace tonquil
