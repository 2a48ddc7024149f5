// SPDX-License-Identifier: MIT
#include "files/AtomicFile.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "FolderContents.h"
#include "OrdinaryUser.h"
#include "files/FileHandle.h"

namespace tonquil {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// The sentence of the problem, or "saved".
std::string save(const std::filesystem::path& target, std::string_view text,
                 const AtomicFileOptions& options = {}) {
    const std::vector<std::uint8_t> bytes(text.begin(), text.end());
    const auto saved = writeFileAtomically(target, bytes, options);
    return saved ? "saved" : saved.error().sentence;
}

unsigned modeOf(const std::filesystem::path& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0xFFFFU;
}

TEST(AtomicFile, GivesTheFileThePermissionsThatItsKindHas) {
    const mode_t former = ::umask(027);
    const AtomicFileOptions document = AtomicFileOptions::document();
    struct Row {
        const char* what;
        unsigned older;
        AtomicFileOptions options;
        unsigned expected;
    };
    const std::vector<Row> rows = {
        {"private, new", 0, {}, 0600},
        {"private, older was open to all", 0666, {}, 0600},
        {"mode against the umask", 0, {.mode = 0666}, 0666},
        {"document, new", 0, document, 0640},
        {"document, older", 0664, document, 0664},
        {"document, older was private", 0600, document, 0600},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const ScratchFolder folder;
        if (row.older != 0) {
            putContents(folder / "file", "older and longer");
            ::chmod((folder / "file").c_str(), row.older);
        }
        EXPECT_EQ(save(folder / "file", "new", row.options), "saved");
        EXPECT_EQ(contentsOf(folder / "file"), "new");
        EXPECT_EQ(modeOf(folder / "file"), row.expected);
        EXPECT_EQ(entriesIn(folder.path()), 1);
    }
    ::umask(former);
}

TEST(AtomicFile, KeepsTheOlderFileWhenTheDiskTakesNoMore) {
    const ScratchFolder folder;
    putContents(folder / "file", "older");
    rlimit former{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    auto* const formerHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit low{10'000, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &low), 0);
    // The first part of it fits, so the system writes less than it is asked to, and then nothing.
    const std::string sentence = save(folder / "file", std::string(100'000, 'x'));
    const std::string another = save(folder / "another", std::string(100'000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, formerHandler);

    EXPECT_EQ(sentence, (folder / "file").native() +
                            " could not be saved: the file would be larger than is allowed. "
                            "The older file was kept.");
    EXPECT_THAT(another, EndsWith("is allowed."));
    EXPECT_EQ(contentsOf(folder / "file"), "older");
    EXPECT_EQ(entriesIn(folder.path()), 1);
}

TEST(AtomicFile, RemovesWhatAStoppedProgramLeftButNotWhatARunningOneWrites) {
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
    EXPECT_EQ(contentsOf(folder / "file"), "third");
}

TEST(AtomicFile, SavesThroughSymbolicLinksAndLeavesThem) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "real");
    putContents(folder / "real/there", "older");
    std::filesystem::create_symlink("real/there", folder / "relative");
    std::filesystem::create_symlink(folder / "relative", folder / "absolute");
    std::filesystem::create_symlink("real/not yet", folder / "dangling");
    std::filesystem::create_symlink("circle", folder / "circle");
    std::filesystem::create_symlink("nowhere/x", folder / "lost");
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"relative", "real/there"}, {"absolute", "real/there"}, {"dangling", "real/not yet"}};
    for (const auto& [link, end] : rows) {
        SCOPED_TRACE(link);
        EXPECT_EQ(save(folder / link, link), "saved");
        EXPECT_TRUE(std::filesystem::is_symlink(folder / link));
        EXPECT_TRUE(
            std::filesystem::is_regular_file(std::filesystem::symlink_status(folder / end)));
        EXPECT_EQ(contentsOf(folder / end), link);
    }
    EXPECT_THAT(save(folder / "circle", "x"), HasSubstr("lead in a circle"));
    EXPECT_THAT(save(folder / "lost", "x"), HasSubstr("its folder does not exist"));
}

TEST(AtomicFile, RefusesTargetsThatNoFileCanBeSavedAs) {
    const ScratchFolder folder;
    std::filesystem::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    putContents(folder / "file", "older");
    const std::vector<std::pair<std::filesystem::path, const char*>> rows = {
        {folder / "folder", "it is a folder"},
        {folder / "folder/", "it is a folder"},
        {folder / "folder/..", "it is a folder"},
        {folder / "pipe", "it is not a regular file"},
        {folder / "none/file", "its folder does not exist"},
        {folder / "file/x", "a part of its path is not a folder"},
        {folder / std::string(256, 'n'), "its name is too long"},
        // Fits by itself, but not with what the temporary name adds.
        {folder / std::string(250, 'n'), "its name is too long"},
        {"", "its name is empty"},
        {std::string("a\0b", 3), "has a NUL"},
    };
    for (const auto& [target, words] : rows) {
        EXPECT_THAT(save(target, "x"), HasSubstr(words));
    }
    EXPECT_EQ(entriesIn(folder.path()), 3);
}

TEST(AtomicFile, RespectsPermissionsThatReplacingAFileWouldNotNeed) {
    const ScratchFolder folder;
    openToOrdinaryUser(folder.path());
    std::filesystem::create_directory(folder / "closed");
    putContents(folder / "closed/file", "older");
    ::chmod((folder / "closed/file").c_str(), 0666);
    ::chmod((folder / "closed").c_str(), 0555);
    putContents(folder / "read-only", "older");
    ::chmod((folder / "read-only").c_str(), 0444);

    EXPECT_EQ(asOrdinaryUser([&] { return save(folder / "read-only", "x"); }),
              (folder / "read-only").native() +
                  " could not be saved: it is read-only. The older file was kept.");
    EXPECT_EQ(asOrdinaryUser([&] { return save(folder / "closed/file", "x"); }),
              (folder / "closed/file").native() +
                  " could not be saved: you may not write there. The older file was kept.");
    EXPECT_EQ(contentsOf(folder / "closed/file") + contentsOf(folder / "read-only"), "olderolder");
    // A folder that may be written to, but not listed.
    ::chmod(folder.path().c_str(), 0333);
    EXPECT_EQ(asOrdinaryUser([&] { return save(folder / "new", "x"); }), "saved");
    ::chmod(folder.path().c_str(), 0777);
    ::chmod((folder / "closed").c_str(), 0777);
}

}  // namespace
}  // namespace tonquil
