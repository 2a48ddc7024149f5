// SPDX-License-Identifier: MIT
#include "platform/xdg/FileWatch.h"

#include <sys/inotify.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <system_error>
#include <utility>

namespace tonquil {

namespace {

// Not IN_CREATE: a file that was just made for writing is empty, which would look like damage.
constexpr std::uint32_t watched = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                  IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr std::uint32_t folderGone = IN_IGNORED | IN_MOVE_SELF;

}  // namespace

FileWatch::FileWatch(RunLoop& runLoop, const std::filesystem::path& file,
                     std::function<void()> changed)
    : _folder(file.has_parent_path() ? file.parent_path() : "."),
      _name(file.filename()),
      _changed(std::move(changed)),
      _inotify(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (_inotify.isOpen()) {
        _readable = runLoop.watchReadable(_inotify.get(), [this] { receive(); });
    }
}

Result<void> FileWatch::renew() {
    // Gives the watch that there is when it is the same folder.
    const int watch = ::inotify_add_watch(_inotify.get(), _folder.c_str(), watched);
    const int error = errno;
    const int former = std::exchange(_watch, watch);
    if (former >= 0 && former != watch) {
        ::inotify_rm_watch(_inotify.get(), former);
    }
    if (watch < 0) {
        return problem(_folder.native() + " is not watched for changes that others make: " +
                       std::generic_category().message(error) + ".");
    }
    return {};
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
        // Where there is no other folder yet, whoever writes into one renews.
        (void)renew();
    }
    if (isConcerned || hasGone) {
        _changed();
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
            isConcerned |= event.len > 0 && _name == name;
            hasGone |= (event.mask & folderGone) != 0;
        }
        events += sizeof event + event.len;
        size -= sizeof event + event.len;
    }
    return isConcerned;
}

}  // namespace tonquil
