// SPDX-License-Identifier: MIT
#include "remote/RemoteMessages.h"

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "values/BoundedJson.h"
#include "values/Utf8.h"

namespace tonquil::remote {

namespace {

struct Tag {
    std::string_view text;
    Kind kind;
};

/// In matching order.
constexpr std::array tags{Tag{scanTag, Kind::scan}, Tag{stateUpdateTag, Kind::stateUpdate},
                          Tag{announceTag, Kind::announce}, Tag{subscribeTag, Kind::subscribe}};

/// Converts each member's "gamma" for output; false if a number is not finite.
bool prepareCurves(PropertyValue& members) {
    for (auto& member : members) {
        if (entry(member, "gamma") == nullptr || !member["gamma"].is_array()) {
            continue;
        }
        for (auto& number : member["gamma"]) {
            if (!number.is_number_float()) {
                continue;
            }
            const float single = toSinglePrecision(number.get<double>());
            if (!std::isfinite(single)) {
                return false;
            }
            number = withShortestText(single);
        }
    }
    return true;
}

std::string message(std::string_view tag, const PropertyValue& object) {
    std::string text(tag);
    return text += object.dump(-1, ' ', false, PropertyValue::error_handler_t::replace);
}

}  // namespace

double withShortestText(float single) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), single);
    double number = 0;
    std::from_chars(text.data(), written.ptr, number);
    return toSinglePrecision(number) == single ? number : static_cast<double>(single);
}

Kind kindOf(std::string_view datagram) {
    for (const Tag& tag : tags) {
        if (datagram.starts_with(tag.text)) {
            return isUtf8(datagram) ? tag.kind : Kind::unrecognised;
        }
    }
    return Kind::unrecognised;
}

std::optional<PropertyValue> objectAfter(std::size_t tagLength, std::string_view datagram) {
    if (datagram.size() < tagLength) {
        return std::nullopt;
    }
    auto value = readBoundedJson(datagram.substr(tagLength));
    if (!value || !value->is_object()) {
        return std::nullopt;
    }
    return std::move(*value);
}

std::string announceMessage(std::string_view name, std::string_view guid, PropertyValue screens) {
    if (!prepareCurves(screens)) {
        return std::string(announceTag);
    }
    return message(announceTag, {{"name", name}, {"guid", guid}, {"screens", std::move(screens)}});
}

std::string stateUpdateMessage(PropertyValue states) {
    return prepareCurves(states) ? message(stateUpdateTag, states) : std::string(stateUpdateTag);
}

}  // namespace tonquil::remote
