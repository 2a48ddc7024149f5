// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "FolderContents.h"
#include "files/AtomicFile.h"
#include "files/BoundedFile.h"
#include "files/FileHandle.h"
#include "tests/support/OrdinaryUser.h"

namespace {
bool& isFlushFailing() {
    static bool isFailing = false;
    return isFailing;
}
}  // namespace

// Replaces the C library's. No test outlives a loss of power.
extern "C" int fsync(int /*file*/) {
    errno = EIO;
    return isFlushFailing() ? -1 : 0;
}

namespace tonquil {
namespace {

using testing::HasSubstr;

/// The sentence of the problem, or "saved".
std::string save(const std::filesystem::path& target, std::string_view text,
                 const AtomicFileOptions& options = {}) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    const auto saved = writeFileAtomically(target, bytes, options);
    return saved ? "saved" : saved.error().sentence;
}

TEST(AtomicFile, SetsPermissionsByKindOfFile) {
    const mode_t former = ::umask(027);
    const AtomicFileOptions document = AtomicFileOptions::document();
    // The mode of the existing file, 0 for none, and of the new one.
    const std::vector<std::tuple<mode_t, AtomicFileOptions, mode_t>> rows = {
        {0, {}, 0600},       {0666, {}, 0600},       {0, {.mode = 0666}, 0666},
        {0, document, 0640}, {0664, document, 0664}, {0600, document, 0600}};
    for (const auto& [older, options, expected] : rows) {
        const ScratchFolder folder;
        if (older != 0) {
            putContents(folder / "file", "older and longer");
            ::chmod((folder / "file").c_str(), older);
        }
        EXPECT_EQ(save(folder / "file", "new", options), "saved");
        EXPECT_EQ(contentsOf(folder / "file"), "new");
        EXPECT_EQ(std::filesystem::status(folder / "file").permissions(),
                  static_cast<std::filesystem::perms>(expected))
            << older;
    }
    ::umask(former);
}

TEST(AtomicFile, KeepsOldFileWhenDiskIsFullOrFailing) {
    const ScratchFolder folder;
    putContents(folder / "file", "older");
    rlimit former{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    auto* const formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit low{10'000, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    // The first part fits, so write() is first short and then fails.
    const std::string sentence = save(folder / "file", std::string(100'000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, formerHandler);
    EXPECT_THAT(sentence, HasSubstr("larger than is allowed. The older file was kept."));
    isFlushFailing() = true;
    EXPECT_THAT(save(folder / "file", "new"), HasSubstr("The older file was kept."));
    isFlushFailing() = false;
    EXPECT_EQ(contentsOf(folder / "file"), "older");
    EXPECT_EQ(entriesIn(folder.path()), 1);
}

TEST(AtomicFile, RemovesStaleTemporaryFileButNotOneInUse) {
    const ScratchFolder folder;
    const auto temporary = folder / ".file.tonquil-new";
    putContents(temporary, "left behind, and rather long");
    EXPECT_EQ(save(folder / "file", "first"), "saved");
    std::filesystem::create_symlink("victim", temporary);
    EXPECT_EQ(save(folder / "file", "second"), "saved");
    EXPECT_EQ(entriesIn(folder.path()), 1);

    FileHandle running(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    ASSERT_EQ(::flock(running.get(), LOCK_EX), 0);
    EXPECT_THAT(save(folder / "file", "third"), HasSubstr("another program is saving it"));
    EXPECT_EQ(contentsOf(folder / "file"), "second");
    EXPECT_TRUE(std::filesystem::exists(temporary));
    ASSERT_EQ(running.close(), 0);
    EXPECT_EQ(save(folder / "file", "third"), "saved");
}

TEST(AtomicFile, SavesThroughSymbolicLinks) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "real");
    putContents(folder / "real/there", "older");
    std::filesystem::create_symlink(folder / "real/there", folder / "absolute");
    std::filesystem::create_symlink("real/not yet", folder / "dangling");
    EXPECT_EQ(save(folder / "absolute", "a"), "saved");
    EXPECT_EQ(save(folder / "dangling", "d"), "saved");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "absolute"));
    EXPECT_EQ(contentsOf(folder / "real/there"), "a");
    EXPECT_EQ(contentsOf(folder / "real/not yet"), "d");
}

TEST(AtomicFile, RefusesTargetsItCannotOrMustNotReplace) {
    const ScratchFolder folder;
    std::filesystem::create_symlink("circle", folder / "circle");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(folder / "closed");
    ::chmod((folder / "closed").c_str(), 0555);
    putContents(folder / "file", "older");
    ::chmod((folder / "file").c_str(), 0444);
    // Writable, but not readable.
    ::chmod(folder.path().c_str(), 0333);
    const std::vector<std::pair<std::filesystem::path, const char*>> rows = {
        {folder / "closed", "it is a folder"},
        {folder / "closed/new", "you may not write there."},
        {folder / "file", "it is read-only. The older file was kept."},
        {folder / "pipe", "it is not a regular file"},
        {folder / "circle", "lead in a circle"},
        // Valid by itself, but too long with the temporary file's prefix and suffix.
        {folder / std::string(250, 'n'), "its name is too long"},
        {std::string("a\0b", 3), "has a NUL"},
        {folder / "new", "saved"}};
    {
        const OrdinaryUser user;
        for (const auto& [target, words] : rows) {
            EXPECT_THAT(save(target, "x"), HasSubstr(words));
        }
    }
    ::chmod(folder.path().c_str(), 0777);
    EXPECT_EQ(contentsOf(folder / "file"), "older");
    EXPECT_EQ(entriesIn(folder.path()), 5);
}

constexpr std::size_t size = 300'000;  // bytes; several steps of writing and of reading

bool isWhole(const std::filesystem::path& target) {
    const auto bytes = readBoundedFile(target, size);
    return bytes && !bytes->empty() && *bytes == std::vector<std::uint8_t>(size, bytes->front());
}

/// Saves files of one repeated byte, a different one each time, and reports each, until killed.
[[noreturn]] void saveForever(const std::filesystem::path& target, std::uint8_t fill, int end) {
    for (;; ++fill) {
        const std::vector<std::uint8_t> contents(size, fill);
        if (!writeFileAtomically(target, contents) || ::write(end, "s", 1) != 1) {
            ::_exit(1);
        }
    }
}

TEST(AtomicFileCrash, LeavesCompleteFileWheneverWriterIsKilled) {
    const ScratchFolder folder;
    const auto target = folder / "file";
    std::ptrdiff_t leftBehind = 0;
    for (int round = 0; round < 200; ++round) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            saveForever(target, static_cast<std::uint8_t>(round), ends[1]);
        }
        ::close(ends[1]);
        char saved = 0;
        // The first save works despite leftovers of the killed writer before it.
        EXPECT_EQ(::read(ends[0], &saved, 1), 1);
        for (int reads = round % 7; reads > 0; --reads) {
            EXPECT_TRUE(isWhole(target));
        }
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ::close(ends[0]);
        ASSERT_TRUE(isWhole(target)) << round;
        leftBehind += entriesIn(folder.path()) - 1;
    }
    // Otherwise no writer was killed during a write, and the test proves nothing.
    EXPECT_GT(leftBehind, 0);
}

std::string problemWith(const std::filesystem::path& path, std::size_t mostBytes = 1024) {
    const auto bytes = readBoundedFile(path, mostBytes);
    return bytes ? "none" : bytes.error().sentence;
}

TEST(BoundedFile, ReadsUpToLimitWhateverTheReportedSize) {
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
    // Files in /proc report a size of 0.
    EXPECT_EQ(problemWith("/proc/self/status", 10), "/proc/self/status is larger than 10 bytes.");
    EXPECT_EQ(problemWith("/proc/self/status", 100'000), "none");
}

TEST(BoundedFile, RefusesNonRegularFilesWithoutBlocking) {
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
