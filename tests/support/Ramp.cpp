// SPDX-License-Identifier: MIT
#include "tests/support/Ramp.h"

#include <cstddef>

namespace tonquil {

std::ostream& operator<<(std::ostream& stream, const Ramp& ramp) {
    const std::size_t size = ramp.red.size();
    stream << size << " entries:";
    if (size == 0 || ramp.green.size() != size || ramp.blue.size() != size) {
        return stream << " uneven, green " << ramp.green.size() << ", blue " << ramp.blue.size();
    }
    for (std::size_t quarter = 0; quarter <= 4; ++quarter) {
        const std::size_t index = quarter * (size - 1) / 4;
        stream << " [" << index << "] " << ramp.red[index] << '/' << ramp.green[index] << '/'
               << ramp.blue[index];
    }
    return stream;
}

}  // namespace tonquil
