// SPDX-License-Identifier: MIT
#include "platform/xdg/FileWatch.h"

#include <sys/inotify.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstring>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

using std::chrono::milliseconds;

// Not IN_CREATE: a file just created for writing is empty and would look damaged.
constexpr std::uint32_t watched = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                  IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr std::uint32_t folderGone = IN_IGNORED | IN_MOVE_SELF;

// A change that is reverted at once counts as one change.
constexpr milliseconds settling(20);
// Each change means reading the whole file, so a burst of hundreds must be throttled.
constexpr milliseconds leastInterval(500);
constexpr milliseconds lookingInterval(5000);

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

}  // namespace

FileWatch::FileWatch(RunLoop& runLoop, const std::filesystem::path& file,
                     std::function<void()> changed)
    : _runLoop(runLoop),
      _file(file),
      _folder(file.has_parent_path() ? file.parent_path() : "."),
      _changed(std::move(changed)),
      _inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
      _seen(stampNow()) {
    if (_inotify.isOpen()) {
        _readable = runLoop.watchReadable(_inotify.get(), [this] { receive(); });
    }
}

Result<void> FileWatch::renew() {
    // Returns the existing watch if it is the same folder.
    const int watch = ::inotify_add_watch(_inotify.get(), _folder.c_str(), watched);
    const int error = errno;
    const int former = std::exchange(_watch, watch);
    if (former >= 0 && former != watch) {
        ::inotify_rm_watch(_inotify.get(), former);
    }
    if (watch < 0) {
        if (!_looking) {
            _looking = _runLoop.callRepeatedly(lookingInterval, [this] { look(); });
        }
        return problem(_folder.native() + " is not watched for changes that others make: " +
                       std::generic_category().message(error) + ".");
    }
    _looking.reset();
    if (former != watch) {
        watchFoldersAbove();
    }
    return {};
}

void FileWatch::watchFoldersAbove() {
    for (const int watch : std::exchange(_above, {})) {
        ::inotify_rm_watch(_inotify.get(), watch);
    }
    if (_watch < 0) {
        return;
    }
    std::error_code unknown;
    const auto folder = std::filesystem::absolute(_folder, unknown);
    for (auto above = folder.parent_path(); above != above.root_path();
         above = above.parent_path()) {
        constexpr std::uint32_t going = IN_MOVE_SELF | IN_DELETE_SELF | IN_ONLYDIR;
        const int watch = ::inotify_add_watch(_inotify.get(), above.c_str(), going);
        if (watch >= 0 && watch != _watch) {
            _above.push_back(watch);
        }
    }
}

void FileWatch::look() {
    const bool isWatched = renew().has_value();
    if (isWatched || stampNow() != _seen) {
        tellSoon();
    }
}

FileWatch::Stamp FileWatch::stampNow() const {
    struct stat status {};
    if (::stat(_file.c_str(), &status) != 0) {
        return {};
    }
    return {.exists = true,
            .device = status.st_dev,
            .node = status.st_ino,
            .size = status.st_size,
            .modified = nanoseconds(status.st_mtim),
            .changed = nanoseconds(status.st_ctim)};
}

void FileWatch::tellSoon() {
    if (_telling) {
        return;
    }
    const auto wait = std::chrono::ceil<milliseconds>(_nextTelling - _runLoop.now());
    _telling = _runLoop.callOnce(std::max(settling, wait), [this] {
        _telling.reset();
        _nextTelling = _runLoop.now() + leastInterval;
        _seen = stampNow();
        _changed();
    });
}

void FileWatch::receive() {
    std::array<char, 16 * (sizeof(inotify_event) + NAME_MAX + 1)> events{};
    bool isConcerned = false;
    bool hasGone = false;
    ssize_t size = 0;
    while ((size = ::read(_inotify.get(), events.data(), events.size())) > 0) {
        isConcerned |= concernsFile(events.data(), static_cast<std::size_t>(size), hasGone);
    }
    if (hasGone) {
        // If there is no other folder yet, `look` finds it later.
        static_cast<void>(renew());
        watchFoldersAbove();
    }
    if (isConcerned || hasGone) {
        tellSoon();
    }
}

bool FileWatch::concernsFile(const char* events, std::size_t size, bool& hasGone) const {
    bool isConcerned = false;
    while (size >= sizeof(inotify_event)) {
        inotify_event event{};
        std::memcpy(&event, events, sizeof event);
        const char* const name = events + sizeof event;
        if ((event.mask & IN_Q_OVERFLOW) != 0) {
            isConcerned = true;
        } else if (event.wd == _watch) {
            isConcerned |= event.len > 0 && _file.filename() == name;
            hasGone |= (event.mask & folderGone) != 0;
        } else if (std::ranges::find(_above, event.wd) != _above.end()) {
            hasGone = true;
        }
        events += sizeof event + event.len;
        size -= sizeof event + event.len;
    }
    return isConcerned;
}

}  // namespace tonquil
