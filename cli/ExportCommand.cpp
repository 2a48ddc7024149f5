// SPDX-License-Identifier: MIT
#include <ctime>
#include <filesystem>
#include <string>

#include "cli/Commands.h"
#include "cli/ScreenSelection.h"
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

/// What is on a display's hardware now, in the bytes of a file.
Result<std::vector<std::uint8_t>> presentTable(ExportFormat format, const Arguments& arguments,
                                               const CommandEnvironment& environment) {
    const auto service = environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    const DisplayBatch batch(**service);
    ScreenRegistry registry(**service);
    registry.updateScreenList();
    const auto screen = screenOrMain(registry, arguments.displays);
    if (!screen) {
        return tl::unexpected(screen.error());
    }
    const DisplayID display = (*screen)->directDisplayID();
    const DisplayDescription description = (*service)->description(display);
    if (!description.isReadable) {
        return problem(description.connector +
                       ": this desktop does not tell what is on a display's hardware.");
    }
    GammaTable table;
    const std::uint32_t sampleCount = (*service)->getHardwareTable(display, table);
    if (sampleCount < 2) {
        return problem("The display has no table that could be read.", environment.logged);
    }
    return exportedTable(format, table, sampleCount,
                         {.name = description.name(),
                          .primaries = description.primaries.value_or(Primaries{}),
                          .time = std::time(nullptr)});
}

}  // namespace

Result<void> runExport(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto format = formatFor(arguments);
    if (!format) {
        return tl::unexpected(format.error());
    }
    const auto contents = presentTable(*format, arguments, environment);
    if (!contents) {
        return tl::unexpected(contents.error());
    }
    return writeFileAtomically(*arguments.file, *contents, AtomicFileOptions::document());
}

}  // namespace tonquil
