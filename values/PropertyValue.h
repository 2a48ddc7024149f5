// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace tonquil {

/// A property-list value: dictionary, array, string, number, boolean or data (binary).
///
/// The library's copy, comparison and `dump` recurse without a limit, so a reader of untrusted
/// bytes must bound the depth before it builds a value; ours do. The library's own `get<int>`
/// narrows silently and throws on a wrong type: use the functions below.
using PropertyValue = nlohmann::json;

/// True for numbers and for booleans, which count as 0 and 1.
[[nodiscard]] bool isNumber(const PropertyValue& value);

/// The value as a float: a number (rounded; infinity beyond the range), a boolean (0 or 1) or a
/// string (its leading decimal number after white space; 0 if there is none, as in "abc"). Nothing
/// for arrays, dictionaries, data and null.
[[nodiscard]] std::optional<float> floatValue(const PropertyValue& value);

/// A number's or boolean's integer value: truncated towards zero, clamped to the 64-bit range, 0
/// for NaN. A string gives its leading decimal integer. 0 for anything else.
[[nodiscard]] std::int64_t integerValue(const PropertyValue& value);

/// A float as a property value: the double with exactly the same value.
[[nodiscard]] PropertyValue singlePrecision(float value);

/// The entry under `key`, or null if `dictionary` is no dictionary or has no such entry.
[[nodiscard]] const PropertyValue* entry(const PropertyValue& dictionary, std::string_view key);

/// Rounds to float, with infinities where the plain conversion is undefined.
[[nodiscard]] float toSinglePrecision(double value);

}  // namespace tonquil
