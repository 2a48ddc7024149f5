// SPDX-License-Identifier: MIT
#include <cstdint>
#include <ostream>

#include "cli/Commands.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

struct Line {
    std::size_t number;
    const KVScreen& screen;
    DisplayDescription description;
    std::int64_t x, y, width, height;
    bool isMain;
};

Line describe(std::size_t number, const KVScreen& screen, DisplayService& service) {
    const DisplayID display = screen.directDisplayID();
    const Rectangle bounds = service.bounds(display);
    return {.number = number,
            .screen = screen,
            .description = service.description(display),
            .x = static_cast<std::int64_t>(bounds.x),
            .y = static_cast<std::int64_t>(bounds.y),
            .width = static_cast<std::int64_t>(bounds.width),
            .height = static_cast<std::int64_t>(bounds.height),
            .isMain = display == service.mainDisplay()};
}

void printText(const Line& line, std::ostream& out) {
    out << line.number << '\t' << line.screen.referenceID() << '\t' << line.description.connector
        << '\t' << line.width << 'x' << line.height << '+' << line.x << '+' << line.y << '\t'
        << line.description.rampSize << '\t'
        << (line.screen.isReferenceIDLocallyUnique() ? "local" : "unique");
    if (!line.description.obstacle.empty()) {
        out << '\t' << line.description.obstacle;
    }
    out << '\n';
}

PropertyValue json(const Line& line) {
    PropertyValue object = {{"number", line.number},
                            {"referenceID", line.screen.referenceID()},
                            {"oldReferenceID", line.screen.oldReferenceID()},
                            {"name", line.description.connector},
                            {"bounds", {line.x, line.y, line.width, line.height}},
                            {"rampSize", line.description.rampSize},
                            {"local", line.screen.isReferenceIDLocallyUnique()},
                            {"main", line.isMain}};
    if (!line.description.obstacle.empty()) {
        object["obstacle"] = line.description.obstacle;
    }
    return object;
}

}  // namespace

Result<void> runDisplays(const Arguments& arguments, DisplayService& service, std::ostream& out) {
    const DisplayBatch batch(service);
    ScreenRegistry registry(service);
    PropertyValue list = PropertyValue::array();
    std::size_t number = 0;
    for (const auto& screen : registry.screens()) {
        const Line line = describe(++number, *screen, service);
        if (arguments.json) {
            list.push_back(json(line));
        } else {
            printText(line, out);
        }
    }
    if (arguments.json) {
        // A connector's name is whatever bytes its driver chose.
        out << list.dump(2, ' ', false, PropertyValue::error_handler_t::replace) << '\n';
    }
    return {};
}

}  // namespace tonquil
