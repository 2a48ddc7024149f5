// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/PropertyValue.h"

namespace tonquil {

/// Whether XML counts it as white space: space, tab, carriage return or newline.
[[nodiscard]] constexpr bool isXmlSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The text without leading and trailing white space.
[[nodiscard]] std::string_view withoutSurroundingSpace(std::string_view text);

/// Parses the whole text as an integer: decimal, or hexadecimal after 0x, with an optional sign.
/// Unsigned from 0 up. Nothing if it is no integer or does not fit −2⁶³ to 2⁶⁴−1.
[[nodiscard]] std::optional<PropertyValue> integerFromText(std::string_view text);

/// Parses the whole text as a real, in any locale: decimal, "nan", "inf" or "infinity" in any case,
/// with an optional sign. Nothing if it is no number or beyond the range of a double.
///
/// Rounds to the same float as the text does: if rounding to double first and then to float would
/// give a neighbour, the result is that float itself.
[[nodiscard]] std::optional<double> realFromText(std::string_view text);

/// The shortest text that `realFromText` reads back to the same float if `value` is one, else to
/// the same double; in both cases it rounds to the same float.
[[nodiscard]] std::string textFromReal(double value);

}  // namespace tonquil
