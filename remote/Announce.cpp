// SPDX-License-Identifier: MIT
#include "remote/Announce.h"

#include <algorithm>

#include "remote/RemoteMessages.h"

namespace tonquil {

namespace {

std::string stringAt(const PropertyValue& object, std::string_view key) {
    const PropertyValue* const value = entry(object, key);
    return value != nullptr && value->is_string() ? value->get<std::string>() : "";
}

AnnouncedScreen screenFrom(const std::string& referenceID, const PropertyValue& info) {
    AnnouncedScreen screen{.referenceID = referenceID, .gamma = {}, .content = {}};
    const PropertyValue* const number = entry(info, "number");
    if (number != nullptr && number->is_number_unsigned()) {
        screen.number = number->get<std::uint64_t>();
    }
    const PropertyValue* const isLocal = entry(info, "local");
    screen.isLocal = isLocal != nullptr && isLocal->is_boolean() && isLocal->get<bool>();
    if (const PropertyValue* const gamma = entry(info, "gamma"); gamma && gamma->is_array()) {
        for (const PropertyValue& element : *gamma) {
            screen.gamma.push_back(floatValue(element).value_or(0.0F));
        }
    }
    screen.content = stringAt(info, "content");
    return screen;
}

}  // namespace

const AnnouncedScreen* Announce::screen(std::string_view referenceID) const {
    const auto found = std::ranges::find(screens, referenceID, &AnnouncedScreen::referenceID);
    return found == screens.end() ? nullptr : &*found;
}

std::optional<Announce> readAnnounce(std::string_view datagram) {
    if (remote::kindOf(datagram) != remote::Kind::announce) {
        return std::nullopt;
    }
    const auto object = remote::objectAfter(remote::announceTag.size(), datagram);
    const PropertyValue* const name = object ? entry(*object, "name") : nullptr;
    const PropertyValue* const screens = object ? entry(*object, "screens") : nullptr;
    if (name == nullptr || !name->is_string() || screens == nullptr || !screens->is_object()) {
        return std::nullopt;
    }
    Announce announce{
        .name = name->get<std::string>(), .guid = stringAt(*object, "guid"), .screens = {}};
    for (const auto& [referenceID, info] : screens->items()) {
        if (info.is_object()) {
            announce.screens.push_back(screenFrom(referenceID, info));
        }
    }
    std::ranges::stable_sort(announce.screens, {}, &AnnouncedScreen::number);
    return announce;
}

}  // namespace tonquil
