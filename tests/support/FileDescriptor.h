// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace tonquil {

class FileDescriptor {
 public:
    explicit FileDescriptor(int descriptor) : _descriptor(descriptor) {}
    ~FileDescriptor() { ::close(_descriptor); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) = delete;

    [[nodiscard]] int get() const { return _descriptor; }

 private:
    int _descriptor;
};

}  // namespace tonquil
