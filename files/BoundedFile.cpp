// SPDX-License-Identifier: MIT
#include "files/BoundedFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "files/FileHandle.h"
#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

std::string systemWords(int error) {
    return std::generic_category().message(error);
}

auto notRegular(const std::string& name, std::string detail) {
    return problemWith(TONQUIL_TEXT("Problem", "%@ is not a regular file."), {name},
                       std::move(detail));
}

auto notRead(const std::string& name, int error) {
    return problemWith(TONQUIL_TEXT("Problem", "%@ could not be read: %@."),
                       {name, systemWords(error)});
}

auto cannotOpen(const std::string& name, int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return problemWith(TONQUIL_TEXT("Problem", "No such file: %@."), {name},
                               systemWords(error));
        case EACCES:
        case EPERM:
            return problemWith(TONQUIL_TEXT("Problem", "%@ is not readable by you."), {name},
                               systemWords(error));
        case ELOOP:
            return problemWith(
                TONQUIL_TEXT("Problem", "%@ is a symbolic link that leads in a circle."), {name},
                systemWords(error));
        case ENAMETOOLONG:
            return problemWith(TONQUIL_TEXT("Problem", "The file name is too long: %@."), {name},
                               systemWords(error));
        case ENXIO:
        case ENODEV:
            // A socket, or a device that does not exist.
            return notRegular(name, systemWords(error));
        default:
            return problemWith(TONQUIL_TEXT("Problem", "%@ could not be opened: %@."),
                               {name, systemWords(error)});
    }
}

std::string limitText(std::size_t bytes) {
    constexpr std::size_t kibibyte = 1024;
    return bytes % kibibyte == 0 ? std::to_string(bytes / kibibyte) + " KiB"
                                 : std::to_string(bytes) + " bytes";
}

Result<void> checkKind(const std::string& name, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        return problemWith(TONQUIL_TEXT("Problem", "%@ is a folder, not a file."), {name});
    }
    if (!S_ISREG(status.st_mode)) {
        return notRegular(name, {});
    }
    return {};
}

/// Reads up to one byte beyond the limit, to detect a file that is too large.
Result<std::vector<std::uint8_t>> readToLimit(const FileHandle& file, const std::string& name,
                                              std::size_t mostBytes) {
    constexpr std::size_t step = std::size_t{64} * 1024;
    std::vector<std::uint8_t> bytes;
    std::size_t used = 0;
    while (used <= mostBytes) {
        bytes.resize(used + std::min(step, mostBytes + 1 - used));
        const ssize_t count = ::read(file.get(), bytes.data() + used, bytes.size() - used);
        if (count < 0 && errno != EINTR) {
            return notRead(name, errno);
        }
        if (count == 0) {
            break;
        }
        used += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    bytes.resize(used);
    return bytes;
}

Result<FileHandle> openRegular(const std::string& name) {
    // A NUL would end the name early, so the system would open a different file.
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
    FileHandle file(descriptor);
    struct stat status {};
    if (::fstat(file.get(), &status) != 0) {
        return notRead(name, errno);
    }
    if (auto kind = checkKind(name, status); !kind) {
        return tl::unexpected(kind.error());
    }
    return file;
}

}  // namespace

tl::unexpected<Problem> fileTooLarge(const std::filesystem::path& path, std::size_t mostBytes) {
    return problemWith(TONQUIL_TEXT("Problem", "%@ is larger than %@."),
                       {path.native(), limitText(mostBytes)});
}

Result<FileBeginning> readFileBeginning(const std::filesystem::path& path, std::size_t mostBytes) {
    return openRegular(path.native())
        .and_then(
            [&](const FileHandle& file) { return readToLimit(file, path.native(), mostBytes); })
        .map([mostBytes](std::vector<std::uint8_t> bytes) {
            const bool isWhole = bytes.size() <= mostBytes;
            bytes.resize(std::min(bytes.size(), mostBytes));
            return FileBeginning{.bytes = std::move(bytes), .isWhole = isWhole};
        });
}

Result<std::vector<std::uint8_t>> readBoundedFile(const std::filesystem::path& path,
                                                  std::size_t mostBytes) {
    auto beginning = readFileBeginning(path, mostBytes);
    if (!beginning) {
        return tl::unexpected(std::move(beginning.error()));
    }
    if (!beginning->isWhole) {
        return fileTooLarge(path, mostBytes);
    }
    return std::move(beginning->bytes);
}

}  // namespace tonquil
