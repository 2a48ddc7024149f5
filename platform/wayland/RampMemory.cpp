// SPDX-License-Identifier: MIT
#include "platform/wayland/RampMemory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tonquil {

namespace {

bool writeWhole(int descriptor, std::span<const std::byte> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace

RampMemory::RampMemory(const HardwareRamp& ramp)
    : _descriptor(memfd_create("gamma-ramp", MFD_CLOEXEC | MFD_ALLOW_SEALING)) {
    constexpr int seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
    if (_descriptor >= 0 &&
        (!writeWhole(_descriptor, std::as_bytes(ramp.entries())) ||
         fcntl(_descriptor, F_ADD_SEALS, seals) != 0 || lseek(_descriptor, 0, SEEK_SET) != 0)) {
        close(std::exchange(_descriptor, -1));
    }
}

RampMemory::~RampMemory() {
    if (_descriptor >= 0) {
        close(_descriptor);
    }
}

}  // namespace tonquil
