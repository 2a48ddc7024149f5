// SPDX-License-Identifier: MIT
#pragma once

namespace tonquil {

/// Fills the descriptors 0 to 2 where the program was started without them, so that nothing that
/// is opened later, such as a display's connection, is taken for standard error. To be called
/// before anything else. What is written to such a stream still fails.
void fillStandardStreams();

}  // namespace tonquil
