// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "values/PropertyValue.h"

/// The messages of the remote-configuration protocol: a tag, which ends in a space, and for some of
/// them one JSON object.
namespace tonquil::remote {

/// The port that servers listen on.
inline constexpr std::uint16_t serverPort = 44188;
/// The port where companions receive unsolicited announces.
inline constexpr std::uint16_t companionPort = 48184;

inline constexpr std::string_view scanTag = "Kantivel scan ";
inline constexpr std::string_view stateUpdateTag = "Kantivel state-update ";
inline constexpr std::string_view announceTag = "Kantivel ann ";
inline constexpr std::string_view subscribeTag = "Kantivel sub ";

enum class Kind { scan, stateUpdate, announce, subscribe, unrecognised };

/// The kind of a datagram, by its tag. It must be entirely valid UTF-8, otherwise it is
/// unrecognised.
[[nodiscard]] Kind kindOf(std::string_view datagram);

/// The JSON object after a tag of `tagLength` bytes; nothing if there is none or it exceeds the
/// bounds of `readBoundedJson`.
[[nodiscard]] std::optional<PropertyValue> objectAfter(std::size_t tagLength,
                                                       std::string_view datagram);

/// A finite float as the double that JSON prints shortest: 0.1 and not 0.10000000149011612. It
/// reads back to the same float.
[[nodiscard]] double withShortestText(float single);

/// Builds an announce. `screens` holds screen infos by reference ID; the numbers of each "gamma"
/// are written in the shortest text of their float value. If a number is not finite, which JSON
/// cannot represent, the result is the tag alone. Invalid UTF-8 in text is repaired.
[[nodiscard]] std::string announceMessage(std::string_view name, std::string_view guid,
                                          PropertyValue screens);

/// Builds a state update. `states` holds states by reference ID; otherwise like `announceMessage`.
[[nodiscard]] std::string stateUpdateMessage(PropertyValue states);

}  // namespace tonquil::remote
