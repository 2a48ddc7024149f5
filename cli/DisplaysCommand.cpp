// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

struct Line {
    std::size_t number;
    std::string referenceID;
    std::string oldReferenceID;
    bool isLocal;
    DisplayDescription description;
    std::int64_t x;
    std::int64_t y;
    std::int64_t width;
    std::int64_t height;
    bool isMain;
};

Line describe(std::size_t number, const KVScreen& screen, DisplayService& service) {
    const DisplayID display = screen.directDisplayID();
    const Rectangle bounds = service.bounds(display);
    return {.number = number,
            .referenceID = screen.referenceID(),
            .oldReferenceID = screen.oldReferenceID(),
            .isLocal = screen.isReferenceIDLocallyUnique(),
            .description = service.description(display),
            .x = static_cast<std::int64_t>(bounds.x),
            .y = static_cast<std::int64_t>(bounds.y),
            .width = static_cast<std::int64_t>(bounds.width),
            .height = static_cast<std::int64_t>(bounds.height),
            .isMain = display == service.mainDisplay()};
}

std::string text(const Line& line) {
    std::string text = std::to_string(line.number) + '\t' + line.referenceID + '\t' +
                       line.description.connector + '\t' + std::to_string(line.width) + 'x' +
                       std::to_string(line.height) + '+' + std::to_string(line.x) + '+' +
                       std::to_string(line.y) + '\t' + std::to_string(line.description.rampSize) +
                       '\t' + (line.isLocal ? "local" : "unique");
    if (!line.description.obstacle.empty()) {
        text += '\t' + line.description.obstacle;
    }
    return text + '\n';
}

PropertyValue json(const Line& line) {
    PropertyValue object = {{"number", line.number},
                            {"referenceID", line.referenceID},
                            {"oldReferenceID", line.oldReferenceID},
                            {"name", line.description.connector},
                            {"bounds", {line.x, line.y, line.width, line.height}},
                            {"rampSize", line.description.rampSize},
                            {"local", line.isLocal},
                            {"main", line.isMain},
                            {"outlives", line.description.outlivesProgram},
                            {"readable", line.description.isReadable}};
    if (!line.description.obstacle.empty()) {
        object["obstacle"] = line.description.obstacle;
    }
    return object;
}

}  // namespace

Result<void> runDisplays(const Arguments& arguments, const CommandEnvironment& environment) {
    const auto service = environment.openDisplays();
    if (!service) {
        return tl::unexpected(service.error());
    }
    DisplayBatch batch(**service);
    ScreenRegistry registry(**service);
    std::vector<Line> lines;
    for (const auto& screen : registry.screens()) {
        lines.push_back(describe(lines.size() + 1, *screen, **service));
    }
    // Nothing was set, but the connection to the X server may be lost.
    if (!batch.finish()) {
        return problem("The displays could not be listed.", environment.logged);
    }
    if (!arguments.json) {
        for (const Line& line : lines) {
            environment.out += text(line);
        }
    } else {
        PropertyValue list = PropertyValue::array();
        std::ranges::transform(lines, std::back_inserter(list), json);
        // A connector name can be any bytes, depending on the driver.
        environment.out += list.dump(2, ' ', false, PropertyValue::error_handler_t::replace) + '\n';
    }
    return {};
}

}  // namespace tonquil
