// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "values/PropertyValue.h"

namespace tonquil {

/// Whether two reals have the same single-precision bits; one not-a-number is as good as another.
[[nodiscard]] inline bool isSameSingle(double a, double b) {
    const float first = toSinglePrecision(a);
    const float second = toSinglePrecision(b);
    return (std::isnan(first) && std::isnan(second)) ||
           std::bit_cast<std::uint32_t>(first) == std::bit_cast<std::uint32_t>(second);
}

/// Equality as property lists have it: an integer is never equal to a real, which the library's
/// own comparison would allow, and reals are equal by their single-precision bits.
[[nodiscard]] inline bool isSameValue(const PropertyValue& a, const PropertyValue& b) {
    if (a.is_number_float() || b.is_number_float()) {
        return a.is_number_float() && b.is_number_float() &&
               isSameSingle(a.get<double>(), b.get<double>());
    }
    if (a.is_object() && b.is_object()) {
        const auto& left = a.get_ref<const PropertyValue::object_t&>();
        const auto& right = b.get_ref<const PropertyValue::object_t&>();
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](const auto& x, const auto& y) {
                              return x.first == y.first && isSameValue(x.second, y.second);
                          });
    }
    if (a.is_array() && b.is_array()) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), &isSameValue);
    }
    return a == b;
}

}  // namespace tonquil
