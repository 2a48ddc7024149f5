// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include <ostream>

#include "cli/Help.h"

namespace tonquil {

Result<void> runCommand(const Arguments& arguments, const OpenDisplays& openDisplays,
                        std::ostream& out, std::ostream& notes) {
    switch (arguments.command) {
        case Arguments::Command::help:
            out << helpText;
            return {};
        case Arguments::Command::version:
            out << "tonquilctl " TONQUIL_VERSION "\n";
            return {};
        case Arguments::Command::table:
            return runTable(arguments, out);
        case Arguments::Command::apply:
            return runApply(arguments, openDisplays, notes);
        default:
            break;
    }
    const auto service = openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    switch (arguments.command) {
        case Arguments::Command::displays:
            return runDisplays(arguments, **service, out);
        case Arguments::Command::restore:
            return runRestore(arguments, **service, notes);
        default:
            return runRead(arguments, **service, out);
    }
}

}  // namespace tonquil
