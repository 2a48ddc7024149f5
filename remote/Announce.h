// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// A display as announced by its server.
struct AnnouncedScreen {
    std::string referenceID;
    /// From 1; 0 if the server sent none.
    std::uint64_t number = 0;
    bool isLocal = false;
    /// The compact array of its curve.
    std::vector<float> gamma;
    std::string content;

    friend bool operator==(const AnnouncedScreen&, const AnnouncedScreen&) = default;
};

/// An announce as parsed by a companion. Its text may not be printable.
struct Announce {
    std::string name;
    std::string guid;
    /// Sorted by number.
    std::vector<AnnouncedScreen> screens;

    friend bool operator==(const Announce&, const Announce&) = default;

    /// The screen with this ID; null if there is none.
    [[nodiscard]] const AnnouncedScreen* screen(std::string_view referenceID) const;
};

/// Nothing if the datagram is not an announce with "name" and "screens". Missing or invalid members
/// of a screen are left empty; members of "screens" that are not objects are skipped.
[[nodiscard]] std::optional<Announce> readAnnounce(std::string_view datagram);

}  // namespace tonquil
