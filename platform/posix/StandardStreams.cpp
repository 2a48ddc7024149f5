// SPDX-License-Identifier: MIT
#include "platform/posix/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tonquil {

void fillStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            // open() returns the lowest free number, which is this one. It is opened in the wrong
            // direction, so that output that goes nowhere does not count as written.
            const int mode = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
            static_cast<void>(open("/dev/null", mode));
        }
    }
}

}  // namespace tonquil
