// SPDX-License-Identifier: MIT
#include "files/BoundedFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>

#include "files/FileHandle.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::string systemWords(int error) {
    return std::generic_category().message(error);
}

auto cannotOpen(const std::string& name, int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return problem("No such file: " + name + ".", systemWords(error));
        case EACCES:
        case EPERM:
            return problem(name + " is not readable by you.", systemWords(error));
        case ELOOP:
            return problem(name + " is a symbolic link that leads in a circle.",
                           systemWords(error));
        case ENAMETOOLONG:
            return problem("The file name is too long: " + name + ".", systemWords(error));
        case ENXIO:
        case ENODEV:
            // A socket, or a device that is not there.
            return problem(name + " is not a regular file.", systemWords(error));
        default:
            return problem(name + " could not be opened: " + systemWords(error) + ".");
    }
}

std::string limitText(std::size_t bytes) {
    constexpr std::size_t kibibyte = 1024;
    return bytes % kibibyte == 0 ? std::to_string(bytes / kibibyte) + " KiB"
                                 : std::to_string(bytes) + " bytes";
}

auto tooLarge(const std::string& name, std::size_t mostBytes) {
    return problem(name + " is larger than " + limitText(mostBytes) + ".");
}

Result<void> checkKind(const std::string& name, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        return problem(name + " is a folder, not a file.");
    }
    if (!S_ISREG(status.st_mode)) {
        return problem(name + " is not a regular file.");
    }
    return {};
}

Result<std::vector<std::uint8_t>> readToLimit(const FileHandle& file, const std::string& name,
                                              std::size_t mostBytes) {
    constexpr std::size_t step = std::size_t{64} * 1024;
    std::vector<std::uint8_t> bytes;
    std::size_t used = 0;
    for (;;) {
        bytes.resize(used + step);
        const ssize_t count = ::read(file.get(), bytes.data() + used, step);
        if (count < 0) {
            if (errno == EINTR) {
                continue;
            }
            return problem(name + " could not be read: " + systemWords(errno) + ".");
        }
        if (count == 0) {
            bytes.resize(used);
            return bytes;
        }
        used += static_cast<std::size_t>(count);
        if (used > mostBytes) {
            return tooLarge(name, mostBytes);
        }
    }
}

}  // namespace

Result<std::vector<std::uint8_t>> readBoundedFile(const std::filesystem::path& path,
                                                  std::size_t mostBytes) {
    const std::string& name = path.native();
    // A NUL would make the system open another file than the one that is named.
    if (name.empty() || name.find('\0') != std::string::npos) {
        return problem(TONQUIL_TEXT("Problem", "The file name is empty or has a NUL in it."));
    }
    int descriptor = -1;
    do {
        descriptor = ::open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    } while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) {
        return cannotOpen(name, errno);
    }
    const FileHandle file(descriptor);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        return problem(name + " could not be read: " + systemWords(errno) + ".");
    }
    if (auto kind = checkKind(name, status); !kind) {
        return tl::unexpected(kind.error());
    }
    if (status.st_size > 0 && static_cast<std::uint64_t>(status.st_size) > mostBytes) {
        return tooLarge(name, mostBytes);
    }
    return readToLimit(file, name, mostBytes);
}

}  // namespace tonquil
