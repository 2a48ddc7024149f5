// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "values/PropertyValue.h"

namespace tonquil {

/// Space, tab, carriage return or newline: what XML takes for white space.
[[nodiscard]] constexpr bool isXmlSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The text without the white space around it.
[[nodiscard]] std::string_view withoutSurroundingSpace(std::string_view text);

/// The integer that the whole text is: decimal, or hexadecimal after 0x, with a sign if need be.
/// Unsigned from 0 up. Nothing where it is none or does not fit −2⁶³ to 2⁶⁴−1.
[[nodiscard]] std::optional<PropertyValue> integerFromText(std::string_view text);

/// The real that the whole text is, whatever the locale: decimal, "nan", "inf" or "infinity" in
/// any case, with a sign if need be. Nothing where it is none or is beyond the range of a double.
///
/// Its single-precision bits are those of the text: where rounding to a double first and then to a
/// single would give a neighbour, the result is the single itself.
[[nodiscard]] std::optional<double> realFromText(std::string_view text);

/// The shortest text that `realFromText` reads back to the same single if `value` is one, else to
/// the same double; in both cases to the same single-precision bits.
[[nodiscard]] std::string textFromReal(double value);

}  // namespace tonquil
