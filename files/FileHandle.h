// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace tonquil {

/// Owns an open file descriptor and closes it; −1 means none.
class FileHandle {
 public:
    FileHandle() = default;
    explicit FileHandle(int descriptor) : _descriptor(descriptor) {}
    ~FileHandle() { (void)close(); }

    FileHandle(FileHandle&& other) noexcept : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(_descriptor, other._descriptor);
        return *this;
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    [[nodiscard]] int get() const { return _descriptor; }
    [[nodiscard]] bool isOpen() const { return _descriptor >= 0; }

    /// Closes early, for callers that need the result: 0, or −1 with `errno` set. The descriptor is
    /// released in either case. Without a descriptor it returns 0.
    [[nodiscard]] int close() {
        const int descriptor = std::exchange(_descriptor, -1);
        return descriptor < 0 ? 0 : ::close(descriptor);
    }

 private:
    int _descriptor = -1;
};

}  // namespace tonquil
