// SPDX-License-Identifier: MIT
#include "plist/NumberText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tonquil {

namespace {

/// `from_chars`, but the whole text must match.
template <typename Number, typename... Format>
std::optional<Number> wholeNumber(std::string_view text, Format... format) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, format...);
    if (result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return number;
}

/// Takes one sign off the text; true for a minus. `from_chars` does not accept a plus.
bool takeSign(std::string_view& text) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return negative;
}

template <typename Number>
std::string shortest(Number number) {
    std::array<char, 64> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

/// All digits of a number, at most about 770.
std::string exact(double number) {
    std::array<char, 1200> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number,
                                      std::chars_format::general, 800);
    return {text.data(), result.ptr};
}

}  // namespace

std::string_view withoutSurroundingSpace(std::string_view text) {
    while (!text.empty() && isXmlSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isXmlSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::optional<PropertyValue> integerFromText(std::string_view text) {
    text = withoutSurroundingSpace(text);
    const bool negative = takeSign(text);
    int base = 10;
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
        base = 16;
    }
    const auto size = wholeNumber<std::uint64_t>(text, base);
    if (!size) {
        return std::nullopt;
    }
    if (!negative || *size == 0) {
        return PropertyValue(*size);
    }
    constexpr std::uint64_t smallest = std::uint64_t{1} << 63U;
    if (*size > smallest) {
        return std::nullopt;
    }
    // Negated while unsigned, because 2⁶³ has no signed counterpart.
    return PropertyValue(static_cast<std::int64_t>(-*size));
}

std::optional<double> realFromText(std::string_view text) {
    text = withoutSurroundingSpace(text);
    const bool negative = takeSign(text);
    // Refuses a second sign.
    if (text.starts_with('-')) {
        return std::nullopt;
    }
    std::optional<double> number = wholeNumber<double>(text);
    if (!number) {
        return std::nullopt;
    }
    const auto single = wholeNumber<float>(text);
    if (single && !std::isnan(*single) && *single != toSinglePrecision(*number)) {
        number = static_cast<double>(*single);
    }
    return negative ? -*number : *number;
}

std::string textFromReal(double value) {
    if (std::isnan(value)) {
        return "nan";
    }
    const float single = toSinglePrecision(value);
    if (static_cast<double>(single) == value) {
        return shortest(single);
    }
    // The shortest digits may lie on the other side of the midpoint between two floats than the
    // double.
    std::string text = shortest(value);
    return realFromText(text) == value ? text : exact(value);
}

}  // namespace tonquil
