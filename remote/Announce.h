// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// A display as its server announces it.
struct AnnouncedScreen {
    std::string referenceID;
    /// From 1; 0 where the server gave none.
    std::uint64_t number = 0;
    bool isLocal = false;
    /// The compact array of its curve.
    std::vector<float> gamma;
    std::string content;

    friend bool operator==(const AnnouncedScreen&, const AnnouncedScreen&) = default;
};

/// What a companion makes of an announce. None of it can be trusted to be printable.
struct Announce {
    std::string name;
    std::string guid;
    /// By number.
    std::vector<AnnouncedScreen> screens;

    friend bool operator==(const Announce&, const Announce&) = default;

    /// The screen with this ID; null where there is none.
    [[nodiscard]] const AnnouncedScreen* screen(std::string_view referenceID) const;
};

/// Nothing where the datagram is no announce with a "name" and "screens". What is missing or wrong
/// inside a screen is empty; a member of "screens" that is no object is left out.
[[nodiscard]] std::optional<Announce> readAnnounce(std::string_view datagram);

}  // namespace tonquil
