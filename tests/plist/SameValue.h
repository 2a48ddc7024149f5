// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "values/PropertyValue.h"

namespace tonquil {

/// Equality for property lists: an integer never equals a real, which the library's own comparison
/// would allow; reals are equal if they round to the same float; all NaNs are equal.
[[nodiscard]] inline bool isSameValue(const PropertyValue& a, const PropertyValue& b) {
    if (a.is_number_float() && b.is_number_float()) {
        const float first = toSinglePrecision(a.get<double>());
        const float second = toSinglePrecision(b.get<double>());
        return (std::isnan(first) && std::isnan(second)) ||
               std::bit_cast<std::uint32_t>(first) == std::bit_cast<std::uint32_t>(second);
    }
    if (!a.is_structured() || a.type() != b.type() || a.size() != b.size()) {
        return a.is_number_float() == b.is_number_float() && a == b;
    }
    for (auto x = a.cbegin(), y = b.cbegin(); x != a.cend(); ++x, ++y) {
        if ((a.is_object() && x.key() != y.key()) || !isSameValue(*x, *y)) {
            return false;
        }
    }
    return true;
}

}  // namespace tonquil
