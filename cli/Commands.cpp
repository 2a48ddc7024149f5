// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include "cli/Help.h"

namespace tonquil {

Result<void> runCommand(const Arguments& arguments, const CommandEnvironment& environment) {
    switch (arguments.command) {
        case Arguments::Command::version:
            environment.out +=
                "tonquilctl " TONQUIL_VERSION "\nDisplay services: " + environment.displayServices +
                "\n";
            return {};
        case Arguments::Command::displays:
            return runDisplays(arguments, environment);
        case Arguments::Command::apply:
            return runApply(arguments, environment);
        case Arguments::Command::restore:
            return runRestore(arguments, environment);
        case Arguments::Command::read:
            return runRead(arguments, environment);
        case Arguments::Command::table:
            return runTable(arguments, environment);
        case Arguments::Command::remoteScan:
            return runRemoteScan(arguments, environment);
        case Arguments::Command::remoteGet:
            return runRemoteGet(arguments, environment);
        case Arguments::Command::remoteSet:
            return runRemoteSet(arguments, environment);
        case Arguments::Command::remoteWatch:
            return runRemoteWatch(arguments, environment);
        default:
            environment.out += helpText;
            return {};
    }
}

}  // namespace tonquil
