// SPDX-License-Identifier: MIT
#include "values/PropertyValue.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>

namespace tonquil {

namespace {

/// The text after leading white space and one plus sign, which `from_chars` does not accept.
std::string_view numberText(const PropertyValue& string) {
    std::string_view text = string.get_ref<const std::string&>();
    const auto start = text.find_first_not_of(" \t\r\n\v\f");
    text.remove_prefix(std::min(start, text.size()));
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    return text;
}

/// Whether a nonzero decimal number is below 1, judged by the position of its first nonzero digit
/// and its exponent, which may exceed any number type.
bool isBelowOne(std::string_view number) {
    const auto mantissa = number.substr(0, number.find_first_of("eE"));
    std::string_view exponentText = number.substr(mantissa.size());
    exponentText.remove_prefix(std::min<std::size_t>(exponentText.size(), 1));
    const bool negative = exponentText.starts_with('-');
    if (negative || exponentText.starts_with('+')) {
        exponentText.remove_prefix(1);
    }
    std::int64_t exponent = 0;
    const auto parsed =
        std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    if (parsed.ec == std::errc::result_out_of_range) {
        return negative;
    }
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    return point - first <= (negative ? exponent : -exponent);
}

/// The leading number of a string: 0 if there is none, clamped to the type's range.
template <typename Number>
Number leadingNumber(std::string_view text) {
    // `from_chars` would also accept "inf" and "nan".
    const auto first = text.find_first_not_of('-');
    if (first == std::string_view::npos || std::isalpha(static_cast<unsigned char>(text[first]))) {
        return Number{};
    }
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        const bool negative = text.front() == '-';
        if constexpr (std::is_floating_point_v<Number>) {
            // `from_chars` reports overflow and underflow as the same error.
            const bool tiny =
                isBelowOne({text.data(), static_cast<std::size_t>(end - text.data())});
            const Number size = tiny ? Number{0} : std::numeric_limits<Number>::infinity();
            return negative ? -size : size;
        } else {
            return negative ? std::numeric_limits<Number>::min()
                            : std::numeric_limits<Number>::max();
        }
    }
    return error == std::errc() ? number : Number{};
}

std::int64_t truncated(double value) {
    constexpr double limit = 9223372036854775808.0;  // 2^63
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= limit) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (value < -limit) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return static_cast<std::int64_t>(value);
}

}  // namespace

bool isNumber(const PropertyValue& value) {
    return value.is_number() || value.is_boolean();
}

float toSinglePrecision(double value) {
    // Half a step above the largest finite float, rounding gives infinity.
    constexpr double overflow = 0x1.ffffffp+127;
    if (value >= overflow) {
        return std::numeric_limits<float>::infinity();
    }
    if (value <= -overflow) {
        return -std::numeric_limits<float>::infinity();
    }
    return static_cast<float>(value);
}

std::optional<float> floatValue(const PropertyValue& value) {
    switch (value.type()) {
        case PropertyValue::value_t::boolean:
            return value.get<bool>() ? 1.0F : 0.0F;
        case PropertyValue::value_t::number_integer:
            return static_cast<float>(value.get<std::int64_t>());
        case PropertyValue::value_t::number_unsigned:
            return static_cast<float>(value.get<std::uint64_t>());
        case PropertyValue::value_t::number_float:
            return toSinglePrecision(value.get<double>());
        case PropertyValue::value_t::string:
            return leadingNumber<float>(numberText(value));
        default:
            return std::nullopt;
    }
}

std::int64_t integerValue(const PropertyValue& value) {
    switch (value.type()) {
        case PropertyValue::value_t::boolean:
            return value.get<bool>() ? 1 : 0;
        case PropertyValue::value_t::number_integer:
            return value.get<std::int64_t>();
        case PropertyValue::value_t::number_unsigned: {
            constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
            return static_cast<std::int64_t>(std::min(value.get<std::uint64_t>(), most));
        }
        case PropertyValue::value_t::number_float:
            return truncated(value.get<double>());
        case PropertyValue::value_t::string:
            return leadingNumber<std::int64_t>(numberText(value));
        default:
            return 0;
    }
}

PropertyValue singlePrecision(float value) {
    return static_cast<double>(value);
}

const PropertyValue* entry(const PropertyValue& dictionary, std::string_view key) {
    if (!dictionary.is_object()) {
        return nullptr;
    }
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? nullptr : &*found;
}

}  // namespace tonquil
