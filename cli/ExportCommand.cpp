// SPDX-License-Identifier: MIT
#include <ctime>
#include <filesystem>
#include <string>

#include "cli/Commands.h"
#include "cli/DisplayTable.h"
#include "colourfiles/ExportedTable.h"
#include "files/AtomicFile.h"

namespace tonquil {

namespace {

Result<ExportFormat> formatFor(const Arguments& arguments) {
    if (arguments.format) {
        return *arguments.format;
    }
    const std::filesystem::path extension = std::filesystem::path(*arguments.file).extension();
    if (extension == ".icc" || extension == ".icm") {
        return ExportFormat::Icc;
    }
    if (extension == ".cal") {
        return ExportFormat::Cal;
    }
    if (extension == ".amp") {
        return ExportFormat::Table;
    }
    return problem("The name " + *arguments.file +
                   " does not say in which format; use --format icc, cal or table.");
}

}  // namespace

Result<void> runExport(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto format = formatFor(arguments);
    if (!format) {
        return tl::unexpected(format.error());
    }
    const auto present = readTable(TableSource::Hardware, arguments, environment);
    if (!present) {
        return tl::unexpected(present.error());
    }
    const DisplayDescription& display = present->display;
    const auto contents = exportedTable(*format, present->table, present->sampleCount,
                                        {.name = display.name(),
                                         .primaries = display.primaries.value_or(Primaries{}),
                                         .time = std::time(nullptr)});
    if (!contents) {
        return tl::unexpected(contents.error());
    }
    return writeFileAtomically(*arguments.file, *contents, AtomicFileOptions::document());
}

}  // namespace tonquil
