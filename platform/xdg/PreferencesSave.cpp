// SPDX-License-Identifier: MIT
#include "platform/xdg/PreferencesSave.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <optional>
#include <thread>
#include <utility>

#include "files/FileHandle.h"
#include "platform/folders/Folder.h"

namespace tonquil {

namespace {

using std::chrono::milliseconds;

/// Nothing while another process holds the lock.
std::optional<FileHandle> lockOf(const std::filesystem::path& file) {
    const std::string path = file.native() + ".lock";
    FileHandle lock(::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return std::nullopt;
    }
    // If locking is impossible, the file is still replaced atomically.
    return lock;
}

std::optional<FileHandle> lockWithin(milliseconds longestWait, const std::filesystem::path& file) {
    constexpr milliseconds step(10);
    auto lock = lockOf(file);
    for (milliseconds waited{}; !lock && waited < longestWait; waited += step) {
        std::this_thread::sleep_for(step);
        lock = lockOf(file);
    }
    return lock;
}

}  // namespace

void PreferencesSave::run() {
    Result<void> made = makeFolder(file.path().parent_path());
    const auto lock = lockWithin(longestWait.value_or(milliseconds::zero()), file.path());
    if (!lock && !longestWait) {
        outcome = Outcome::Locked;
        return;
    }
    if (!lock) {
        notes.push_back(file.path().native() +
                        " stays locked by another program and is saved all the same.");
    }
    const Result<void> saved = std::move(made).and_then([this] { return merge(); });
    outcome = saved ? Outcome::Saved : Outcome::Failed;
    if (!saved) {
        problem = saved.error();
    }
}

Result<void> PreferencesSave::merge() {
    PropertyListFile::Contents contents = file.read();
    if (contents.state == PropertyListFile::State::Unreadable) {
        contents.problem.sentence += " Settings are not saved.";
        return tl::unexpected(std::move(contents.problem));
    }
    PropertyValue merged = contents.dictionary;
    if (contents.state == PropertyListFile::State::Damaged) {
        const auto aside = file.moveAside();
        if (!aside) {
            notes.push_back(contents.reason());
            return tl::unexpected(aside.error());
        }
        notes.push_back(contents.reason() + " It was kept as " + aside->native() + ".");
        // The values read before the damage are in no file any more.
        hasMovedAside = true;
        merged = values;
    }
    for (const std::string& key : changed) {
        if (const PropertyValue* value = entry(values, key)) {
            merged[key] = *value;
        } else {
            merged.erase(key);
        }
    }
    return isSame(merged, contents.dictionary) ? Result<void>() : file.write(merged);
}

}  // namespace tonquil
