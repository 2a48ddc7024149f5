// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace tonquil {

/// An open descriptor, closed with this object; -1 stands for none.
class FileDescriptor {
 public:
    explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            close();
            m_descriptor = std::exchange(other.m_descriptor, -1);
        }
        return *this;
    }

    [[nodiscard]] int get() const { return m_descriptor; }
    void close() {
        if (m_descriptor >= 0) {
            ::close(std::exchange(m_descriptor, -1));
        }
    }

 private:
    int m_descriptor;
};

}  // namespace tonquil
