// SPDX-License-Identifier: MIT
#include "platform/xdg/PropertyListFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <system_error>

#include "files/AtomicFile.h"
#include "files/BoundedFile.h"
#include "foundation/TranslatableText.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {

namespace {

PropertyListFile::Contents damaged(Problem problem) {
    return {.state = PropertyListFile::State::Damaged, .problem = std::move(problem)};
}

/// The result for a file that could not be read at all.
PropertyListFile::Contents unread(const std::filesystem::path& path, Problem problem) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR)) {
        return {};
    }
    if (S_ISREG(status.st_mode) &&
        static_cast<std::uint64_t>(status.st_size) > PropertyListFile::budget().mostBytes) {
        return damaged(std::move(problem));
    }
    return {.state = PropertyListFile::State::Unreadable, .problem = std::move(problem)};
}

std::string timeText() {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    ::gmtime_r(&now, &utc);
    std::array<char, sizeof "20261121T061500Z"> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%SZ", &utc);
    return {text.data(), length};
}

/// Renames without ever replacing anything, on any file system with hard links; returns an error
/// number, or 0.
int renameToFreeName(const std::filesystem::path& from, const std::filesystem::path& to) {
    return ::link(from.c_str(), to.c_str()) == 0 && ::unlink(from.c_str()) == 0 ? 0 : errno;
}

}  // namespace

PropertyListBudget PropertyListFile::budget() {
    constexpr std::size_t mostBytes = std::size_t{4} << 20U;
    PropertyListBudget budget;
    budget.mostBytes = mostBytes;
    budget.mostText = mostBytes;
    return budget;
}

PropertyListFile::Contents PropertyListFile::read() const {
    auto bytes = readBoundedFile(_path, budget().mostBytes);
    if (!bytes) {
        std::error_code unknown;
        if (!std::filesystem::exists(_path, unknown) && !unknown) {
            return {};
        }
        // Another process may have made it in between.
        bytes = readBoundedFile(_path, budget().mostBytes);
    }
    if (!bytes) {
        return unread(_path, std::move(bytes.error()));
    }
    auto list = readPropertyList(*bytes, budget());
    if (!list) {
        return damaged(
            {.sentence = _path.native() + " cannot be understood. " + list.error().sentence,
             .detail = std::move(list.error().detail)});
    }
    if (!list->is_object()) {
        return damaged({.sentence = _path.native() + " holds no dictionary.", .detail = {}});
    }
    return {.state = State::Read, .dictionary = std::move(*list)};
}

std::string PropertyListFile::Contents::reason() const {
    return problem.detail.empty() ? problem.sentence
                                  : problem.sentence + " (" + problem.detail + ")";
}

Result<void> PropertyListFile::write(const PropertyValue& dictionary, bool isFlushed) const {
    return writePropertyList(dictionary, budget()).and_then([&](const std::string& text) {
        return writeFileAtomically(_path, std::vector<std::uint8_t>(text.begin(), text.end()),
                                   {.isFlushed = isFlushed});
    });
}

Result<std::filesystem::path> PropertyListFile::moveAside() const {
    const std::string name = _path.native() + ".damaged-" + timeText();
    constexpr int mostOfOneSecond = 1000;
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= mostOfOneSecond; ++number) {
        const std::filesystem::path aside =
            number == 1 ? name : name + "-" + std::to_string(number);
        error = renameToFreeName(_path, aside);
        if (error == 0) {
            return aside;
        }
    }
    return problemWith(TONQUIL_TEXT("Problem", "%@ is damaged and cannot be moved aside: %@."),
                       {_path.native(), std::generic_category().message(error)});
}

bool isSame(const PropertyValue& a, const PropertyValue& b) {
    return PropertyValue::to_cbor(a) == PropertyValue::to_cbor(b);
}

}  // namespace tonquil
