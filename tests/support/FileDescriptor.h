// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace tonquil {

/// An open descriptor, closed with this object; -1 stands for none.
class FileDescriptor {
 public:
    explicit FileDescriptor(int descriptor = -1) : _descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : _descriptor(std::exchange(other._descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            close();
            _descriptor = std::exchange(other._descriptor, -1);
        }
        return *this;
    }

    [[nodiscard]] int get() const { return _descriptor; }
    void close() {
        if (_descriptor >= 0) {
            ::close(std::exchange(_descriptor, -1));
        }
    }

 private:
    int _descriptor;
};

}  // namespace tonquil
