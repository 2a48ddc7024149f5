// SPDX-License-Identifier: MIT
#include "files/BoundedFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "FolderContents.h"
#include "OrdinaryUser.h"

namespace tonquil {
namespace {

std::string problemWith(const std::filesystem::path& path, std::size_t mostBytes = 1024) {
    const auto bytes = readBoundedFile(path, mostBytes);
    return bytes ? "none" : bytes.error().sentence;
}

TEST(BoundedFile, ReadsUpToTheLimitAndNotAByteMore) {
    const ScratchFolder folder;
    const std::string contents(200'000, 'x');
    putContents(folder / "file", contents);
    std::filesystem::create_symlink("file", folder / "link");
    for (const char* const name : {"file", "link"}) {
        const auto bytes = readBoundedFile(folder / name, contents.size());
        ASSERT_TRUE(bytes) << bytes.error().sentence;
        EXPECT_EQ(std::string(bytes->begin(), bytes->end()), contents);
    }
    EXPECT_EQ(problemWith(folder / "file", contents.size() - 1),
              (folder / "file").native() + " is larger than 199999 bytes.");
    putContents(folder / "empty", "");
    EXPECT_TRUE(readBoundedFile(folder / "empty", 0));
}

TEST(BoundedFile, DoesNotTrustTheSizeThatAFileClaims) {
    const ScratchFolder folder;
    putContents(folder / "sparse", "");
    ASSERT_EQ(::truncate((folder / "sparse").c_str(), off_t{1} << 40), 0);
    EXPECT_THAT(problemWith(folder / "sparse"), testing::EndsWith(" is larger than 1 KiB."));
    // Files in /proc claim no size at all.
    EXPECT_EQ(problemWith("/proc/self/status", 10), "/proc/self/status is larger than 10 bytes.");
    const auto status = readBoundedFile("/proc/self/status", 100'000);
    ASSERT_TRUE(status);
    EXPECT_FALSE(status->empty());
}

TEST(BoundedFile, RefusesWhatIsNoRegularFileWithoutWaitingForIt) {
    const ScratchFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, (folder / "socket").c_str(), sizeof address.sun_path - 1);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): as sockets want it.
    ASSERT_EQ(::bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    std::filesystem::create_symlink("circle", folder / "circle");

    using testing::EndsWith;
    using testing::StartsWith;
    EXPECT_THAT(problemWith(folder / "pipe"), EndsWith("pipe is not a regular file."));
    EXPECT_THAT(problemWith(folder / "socket"), EndsWith("socket is not a regular file."));
    EXPECT_EQ(problemWith("/dev/zero"), "/dev/zero is not a regular file.");
    EXPECT_THAT(problemWith(folder.path()), EndsWith(" is a folder, not a file."));
    EXPECT_THAT(problemWith(folder / "none"),
                StartsWith("No such file: " + folder.path().native()));
    EXPECT_THAT(problemWith(folder / "pipe" / "x"), StartsWith("No such file: "));
    EXPECT_THAT(problemWith(folder / "circle"), EndsWith("leads in a circle."));
    EXPECT_THAT(problemWith(folder / std::string(300, 'n')),
                StartsWith("The file name is too long"));
    EXPECT_EQ(problemWith(""), problemWith(std::string("/dev/null\0", 10)));
    ::close(server);
}

TEST(BoundedFile, SaysWhenTheUserMayNotReadIt) {
    const ScratchFolder folder;
    openToOrdinaryUser(folder.path());
    putContents(folder / "secret", "x");
    ASSERT_EQ(::chmod((folder / "secret").c_str(), 0), 0);
    EXPECT_EQ(asOrdinaryUser([&] { return problemWith(folder / "secret"); }),
              (folder / "secret").native() + " is not readable by you.");
}

}  // namespace
}  // namespace tonquil
