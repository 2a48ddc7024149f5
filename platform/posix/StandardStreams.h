// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Opens the file descriptors 0 to 2 if the program was started without them, so that nothing
/// opened later, such as a display connection, ends up as standard error. Call before anything
/// else. Writing to such a stream still fails.
void fillStandardStreams();

}  // namespace tonquil
