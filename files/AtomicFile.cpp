// SPDX-License-Identifier: MIT
#include "files/AtomicFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "files/FileHandle.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

namespace fs = std::filesystem;

/// The reason a step failed: the system error, or our own text where there is none.
struct Failure {
    int error = 0;
    std::string words;
};
using Step = tl::expected<void, Failure>;

Step failed(int error) {
    return tl::unexpected(Failure{error, {}});
}
Step failed(std::string words) {
    return tl::unexpected(Failure{0, std::move(words)});
}
Step checked(int result) {
    return result == 0 ? Step() : failed(errno);
}

/// Lower case and without a full stop, to end a sentence. A key of the context "Problem".
std::string reason(const Failure& failure) {
    switch (failure.error) {
        case 0:
            return failure.words;
        case ENOSPC:
            return TONQUIL_TEXT("Problem", "no space is left on the disk");
        case EDQUOT:
            return TONQUIL_TEXT("Problem", "your share of the disk is used up");
        case EFBIG:
            return TONQUIL_TEXT("Problem", "the file would be larger than is allowed");
        case EACCES:
        case EPERM:
            return TONQUIL_TEXT("Problem", "you may not write there");
        case EROFS:
            return TONQUIL_TEXT("Problem", "the disk is read-only");
        case ENOENT:
            return TONQUIL_TEXT("Problem", "its folder does not exist");
        case ENOTDIR:
            return TONQUIL_TEXT("Problem", "a part of its path is not a folder");
        case ENAMETOOLONG:
            return TONQUIL_TEXT("Problem", "its name is too long");
        case ELOOP:
            return TONQUIL_TEXT("Problem", "its symbolic links lead in a circle");
        default:
            return std::generic_category().message(failure.error);
    }
}

/// The end of a chain of symbolic links, whether or not it exists.
tl::expected<fs::path, Failure> followLinks(fs::path path) {
    constexpr int mostLinks = 40;
    for (int links = 0; links <= mostLinks; ++links) {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(path, error);
        if (status.type() == fs::file_type::none) {
            return tl::unexpected(Failure{error.value(), {}});
        }
        if (status.type() != fs::file_type::symlink) {
            return path;
        }
        const fs::path next = fs::read_symlink(path, error);
        if (error) {
            return tl::unexpected(Failure{error.value(), {}});
        }
        // An absolute link replaces the folder.
        path = path.parent_path() / next;
    }
    return tl::unexpected(Failure{ELOOP, {}});
}

/// One save: steps in order, each of which may fail.
class Save {
 public:
    explicit Save(const AtomicFileOptions& options)
        : _mode(options.mode), _isFlushed(options.isFlushed), _canFlushFolder(options.isFlushed) {}
    ~Save() { removeTemporary(); }
    Save(const Save&) = delete;
    Save& operator=(const Save&) = delete;
    Save(Save&&) = delete;
    Save& operator=(Save&&) = delete;

    Step run(const fs::path& target, std::span<const std::uint8_t> contents) {
        return findTarget(target)
            .and_then([this] { return checkOlder(); })
            .and_then([this] { return createTemporary(); })
            .and_then([this] { return setPermissions(); })
            .and_then([this, contents] { return write(contents); })
            .and_then([this] { return _isFlushed ? checked(::fsync(_file.get())) : Step(); })
            .and_then([this] { return replace(); });
    }

    [[nodiscard]] bool hasOlder() const { return _hasOlder; }
    [[nodiscard]] bool isReplaced() const { return _isReplaced; }

 private:
    Step findTarget(const fs::path& target) {
        const auto end = followLinks(target);
        if (!end) {
            return tl::unexpected(end.error());
        }
        if (!end->has_filename() || end->filename() == "." || end->filename() == "..") {
            return failed(std::string(TONQUIL_TEXT("Problem", "it is a folder")));
        }
        _name = end->filename().native();
        _temporary = "." + _name + ".tonquil-new";
        const fs::path folder = end->has_parent_path() ? end->parent_path() : fs::path(".");
        _folder = FileHandle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!_folder.isOpen() && errno == EACCES) {
            // A folder can be writable but not readable; then it just cannot be flushed.
            _folder = FileHandle(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
            _canFlushFolder = false;
        }
        return _folder.isOpen() ? Step() : failed(errno);
    }

    Step checkOlder() {
        if (::fstatat(_folder.get(), _name.c_str(), &_older, AT_SYMLINK_NOFOLLOW) != 0) {
            return errno == ENOENT ? Step() : failed(errno);
        }
        if (S_ISDIR(_older.st_mode)) {
            return failed(std::string(TONQUIL_TEXT("Problem", "it is a folder")));
        }
        if (!S_ISREG(_older.st_mode)) {
            return failed(std::string(TONQUIL_TEXT("Problem", "it is not a regular file")));
        }
        _hasOlder = true;
        // rename() needs no permission on the file itself, but a file that its owner made read-only
        // must not change.
        if (::faccessat(_folder.get(), _name.c_str(), W_OK, AT_EACCESS) != 0) {
            return errno == EACCES ? failed(std::string(TONQUIL_TEXT("Problem", "it is read-only")))
                                   : failed(errno);
        }
        return {};
    }

    bool openTemporary() {
        const mode_t mode = _mode || _hasOlder ? 0600 : 0666;
        _file = FileHandle(::openat(_folder.get(), _temporary.c_str(),
                                    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
        return _file.isOpen();
    }

    Step createTemporary() {
        if (!openTemporary()) {
            if (errno != EEXIST) {
                return failed(errno);
            }
            if (auto removed = removeStale(); !removed) {
                return removed;
            }
            if (!openTemporary()) {
                return errno == EEXIST ? busy() : failed(errno);
            }
        }
        // Another program may remove the new file as stale before we hold the lock.
        if (!lock(_file) || !isTemporary(_file)) {
            return busy();
        }
        _ownsTemporary = true;
        return {};
    }

    static Step busy() {
        return failed(
            std::string(TONQUIL_TEXT("Problem", "another program is saving it right now")));
    }

    /// The lock tells a temporary file still being written from a leftover. Where the file system
    /// has no locks, every temporary file counts as a leftover.
    static bool lock(const FileHandle& file) {
        return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    }

    [[nodiscard]] bool isTemporary(const FileHandle& file) const {
        struct stat mine {};
        struct stat named {};
        return ::fstat(file.get(), &mine) == 0 &&
               ::fstatat(_folder.get(), _temporary.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
               mine.st_dev == named.st_dev && mine.st_ino == named.st_ino;
    }

    Step removeStale() {
        const FileHandle stale(::openat(_folder.get(), _temporary.c_str(),
                                        O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
        if (stale.isOpen() && (!lock(stale) || !isTemporary(stale))) {
            return busy();
        }
        const Step removed = checked(::unlinkat(_folder.get(), _temporary.c_str(), 0));
        return removed || removed.error().error == ENOENT ? Step() : removed;
    }

    Step setPermissions() {
        if (_mode) {
            return checked(::fchmod(_file.get(), *_mode));
        }
        if (!_hasOlder) {
            return {};
        }
        // Only a privileged user may change the owner; otherwise the file is owned by whoever saves
        // it.
        const bool given = ::fchown(_file.get(), _older.st_uid, _older.st_gid) == 0 ||
                           ::fchown(_file.get(), static_cast<uid_t>(-1), _older.st_gid) == 0;
        // With a different group, the old group permissions would let the wrong users in.
        const mode_t kept = given ? 0777 : 0707;
        return checked(::fchmod(_file.get(), _older.st_mode & kept));
    }

    Step write(std::span<const std::uint8_t> contents) {
        while (!contents.empty()) {
            const ssize_t count = ::write(_file.get(), contents.data(), contents.size());
            if (count < 0 && errno != EINTR) {
                return failed(errno);
            }
            if (count > 0) {
                contents = contents.subspan(static_cast<std::size_t>(count));
            }
        }
        return {};
    }

    Step replace() {
        if (!isTemporary(_file)) {
            _ownsTemporary = false;
            return busy();
        }
        if (::renameat(_folder.get(), _temporary.c_str(), _folder.get(), _name.c_str()) != 0) {
            return failed(errno);
        }
        _ownsTemporary = false;
        _isReplaced = true;
        // Closed this late because closing releases the lock.
        if (_file.close() != 0) {
            return failed(errno);
        }
        // Some file systems cannot flush a folder and return EINVAL.
        if (_canFlushFolder && ::fsync(_folder.get()) != 0 && errno != EINVAL) {
            return failed(errno);
        }
        return {};
    }

    void removeTemporary() {
        if (_ownsTemporary) {
            ::unlinkat(_folder.get(), _temporary.c_str(), 0);
        }
    }

    std::optional<mode_t> _mode;
    std::string _name;
    std::string _temporary;
    FileHandle _folder;
    FileHandle _file;
    struct stat _older {};
    bool _isFlushed;
    bool _canFlushFolder;
    bool _hasOlder = false;
    bool _ownsTemporary = false;
    bool _isReplaced = false;
};

}  // namespace

Result<void> writeFileAtomically(const std::filesystem::path& target,
                                 std::span<const std::uint8_t> contents,
                                 const AtomicFileOptions& options) {
    if (target.empty() || target.native().find('\0') != std::string::npos) {
        return problem(TONQUIL_TEXT(
            "Problem", "The file could not be saved: its name is empty or has a NUL in it."));
    }
    Save save(options);
    const Step done = save.run(target, contents);
    if (done) {
        return {};
    }
    const std::string detail =
        done.error().error == 0 ? "" : std::generic_category().message(done.error().error);
    const std::vector<std::string> arguments = {target.native(), reason(done.error())};
    if (save.isReplaced()) {
        return problemWith(
            TONQUIL_TEXT("Problem", "%@ was saved, but the disk may not have kept it: %@."),
            arguments, detail);
    }
    if (save.hasOlder()) {
        return problemWith(
            TONQUIL_TEXT("Problem", "%@ could not be saved: %@. The older file was kept."),
            arguments, detail);
    }
    return problemWith(TONQUIL_TEXT("Problem", "%@ could not be saved: %@."), arguments, detail);
}

}  // namespace tonquil
