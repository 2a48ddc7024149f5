// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include <utility>

#include "cli/Help.h"

namespace tonquil {

namespace {

/// A preset is a file like any other once its place is known.
Result<void> runWithPreset(const Arguments& arguments, const CommandEnvironment& environment) {
    auto file = environment.presets.fileNamed(*arguments.preset);
    if (!file) {
        return tl::unexpected(std::move(file.error()));
    }
    Arguments found = arguments;
    found.preset.reset();
    found.file = file->string();
    return runCommand(found, environment);
}

}  // namespace

Result<void> runCommand(const Arguments& arguments, const CommandEnvironment& environment) {
    if (arguments.preset) {
        return runWithPreset(arguments, environment);
    }
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
        case Arguments::Command::exportTable:
            return runExport(arguments, environment);
        case Arguments::Command::fit:
            return runFit(arguments, environment);
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
