// SPDX-License-Identifier: MIT
#include "platform/posix/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tonquil {

void fillStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            // The lowest free number is this one. It is open the wrong way round, so that output
            // which nobody gets does not pass for written.
            const int mode = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
            static_cast<void>(open("/dev/null", mode));
        }
    }
}

}  // namespace tonquil
