// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "values/PropertyValue.h"

/// The messages of the remote-configuration protocol as bytes: a tag, which ends in a space, and
/// for some of them one JSON object.
namespace tonquil::remote {

/// Where servers listen.
inline constexpr std::uint16_t serverPort = 44188;
/// Where companions hear the announces that nobody asked for.
inline constexpr std::uint16_t companionPort = 48184;

inline constexpr std::string_view scanTag = "Kantivel scan ";
inline constexpr std::string_view stateUpdateTag = "Kantivel state-update ";
inline constexpr std::string_view announceTag = "Kantivel ann ";
inline constexpr std::string_view subscribeTag = "Kantivel sub ";

enum class Kind { scan, stateUpdate, announce, subscribe, unrecognised };

/// What a datagram is, by its tag. It must be UTF-8 from end to end: otherwise it is unrecognised.
[[nodiscard]] Kind kindOf(std::string_view datagram);

/// The JSON object behind a tag of `tagLength` bytes; nothing where there is none, or where it is
/// beyond the bounds of `readBoundedJson`.
[[nodiscard]] std::optional<PropertyValue> objectAfter(std::size_t tagLength,
                                                       std::string_view datagram);

/// A finite single-precision number as JSON writes it shortest: 0.1 and not 0.10000000149011612.
/// It reads back to the same single.
[[nodiscard]] double withShortestText(float single);

/// An announce. `screens` holds screen infos by reference ID; the numbers of each "gamma" are
/// written with the shortest text of their single-precision value. The tag alone where a number
/// is not finite, which JSON cannot say. Text that is not UTF-8 is mended.
[[nodiscard]] std::string announceMessage(std::string_view name, std::string_view guid,
                                          PropertyValue screens);

/// A state update. `states` holds states by reference ID; otherwise as `announceMessage`.
[[nodiscard]] std::string stateUpdateMessage(PropertyValue states);

}  // namespace tonquil::remote
