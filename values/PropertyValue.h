// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace tonquil {

/// A property-list value: dictionary, array, string, number, boolean or data (binary).
///
/// The library's copy, comparison and `dump` recurse without a limit, so a reader of foreign bytes
/// must bound the depth before it builds one; ours do. Of the library's own conversions, `get<int>`
/// narrows silently and throws on a wrong type: use the functions below.
using PropertyValue = nlohmann::json;

/// True for numbers and for booleans, which count as the numbers 0 and 1.
[[nodiscard]] bool isNumber(const PropertyValue& value);

/// The value as a single-precision number: a number (rounded; beyond the range, an infinity), a
/// boolean (0 or 1) or a string (its leading decimal number after white space; 0 if it begins with
/// none, as "abc" does). Nothing for values that have no number in them: arrays, dictionaries,
/// data, null.
[[nodiscard]] std::optional<float> floatValue(const PropertyValue& value);

/// A number's or boolean's integer value: truncated towards zero, held at the ends of the 64-bit
/// range, 0 for not-a-number. A string gives its leading decimal integer. 0 for anything else.
[[nodiscard]] std::int64_t integerValue(const PropertyValue& value);

/// A single-precision number as a property value: the double that has exactly the same value.
[[nodiscard]] PropertyValue singlePrecision(float value);

/// The entry under `key`, or a null pointer where `dictionary` is no dictionary or has none.
[[nodiscard]] const PropertyValue* entry(const PropertyValue& dictionary, std::string_view key);

/// Rounds to single precision with the infinities that the plain conversion leaves undefined.
[[nodiscard]] float toSinglePrecision(double value);

}  // namespace tonquil
