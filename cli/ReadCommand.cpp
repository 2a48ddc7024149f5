// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/DisplayTable.h"
#include "cli/TableText.h"

namespace tonquil {

Result<void> runRead(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto read = readTable(arguments.hardware ? TableSource::Hardware : TableSource::Base,
                                arguments, environment);
    if (!read) {
        return tl::unexpected(read.error());
    }
    printTable(read->table, read->sampleCount, environment.out);
    return {};
}

}  // namespace tonquil
