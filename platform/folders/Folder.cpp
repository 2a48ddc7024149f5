// SPDX-License-Identifier: MIT
#include "platform/folders/Folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

constexpr mode_t ownerOnly = 0700;

auto notMade(const std::filesystem::path& folder, int error) {
    const std::string words = std::generic_category().message(error);
    return problemWith(TONQUIL_TEXT("Problem", "The folder %@ could not be made: %@."),
                       {folder.native(), words});
}

}  // namespace

Result<void> makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    // An empty path is the current folder.
    if (folder.empty() || std::filesystem::is_directory(folder, error)) {
        return {};
    }
    if (auto made = makeFolder(folder.parent_path()); !made) {
        return made;
    }
    if (::mkdir(folder.c_str(), ownerOnly) != 0) {
        const int reason = errno;
        // Another program may have created it first.
        if (!std::filesystem::is_directory(folder, error)) {
            return notMade(folder, reason);
        }
    }
    return {};
}

Result<void> makeOwnFolder(const std::filesystem::path& folder) {
    if (::mkdir(folder.c_str(), ownerOnly) != 0 && errno != EEXIST) {
        return notMade(folder, errno);
    }
    struct stat status {};
    if (::lstat(folder.c_str(), &status) != 0) {
        return notMade(folder, errno);
    }
    constexpr mode_t permissions = 07777;
    if (!S_ISDIR(status.st_mode) || status.st_uid != ::geteuid() ||
        (status.st_mode & permissions) != ownerOnly) {
        return problem(folder.native() + " is not a folder that only you can use.");
    }
    return {};
}

}  // namespace tonquil
