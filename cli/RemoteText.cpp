// SPDX-License-Identifier: MIT
#include "cli/RemoteText.h"

#include "remote/PrintableText.h"
#include "remote/RemoteMessages.h"

namespace tonquil {

namespace {

constexpr std::size_t mostPrintedBytes = 256;

PropertyValue curveArray(const std::vector<float>& curve) {
    PropertyValue array = PropertyValue::array();
    for (const float number : curve) {
        array.push_back(remote::withShortestText(number));
    }
    return array;
}

}  // namespace

std::string curveText(const std::vector<float>& curve) {
    return jsonText(curveArray(curve), -1);
}

std::string screenLine(const AnnouncedScreen& screen) {
    std::string line = std::to_string(screen.number);
    line.append("\t").append(remote::printable(screen.referenceID, mostPrintedBytes));
    line.append(screen.isLocal ? "\tlocal\t" : "\tunique\t");
    line.append(remote::printable(screen.content, mostPrintedBytes));
    return line.append("\t").append(curveText(screen.gamma)).append("\n");
}

PropertyValue serverObject(const RemoteServer& server) {
    PropertyValue screens = PropertyValue::array();
    for (const AnnouncedScreen& screen : server.announce.screens) {
        screens.push_back({{"referenceID", screen.referenceID},
                           {"number", screen.number},
                           {"local", screen.isLocal},
                           {"content", screen.content},
                           {"gamma", curveArray(screen.gamma)}});
    }
    return {{"address", server.address.dottedHost()},
            {"name", server.announce.name},
            {"guid", server.announce.guid},
            {"screens", std::move(screens)}};
}

std::string jsonText(const PropertyValue& value, int indent) {
    return value.dump(indent, ' ', true, PropertyValue::error_handler_t::replace);
}

}  // namespace tonquil
