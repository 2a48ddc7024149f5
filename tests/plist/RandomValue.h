// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "values/PropertyValue.h"

namespace tonquil {

/// Makes property-list values of every type, the same ones in every run.
class RandomValue {
 public:
    [[nodiscard]] PropertyValue value(int levels) {
        switch (below(levels > 0 ? 9 : 7)) {
            case 0:
                return below(2) == 0;
            case 1:
                return std::uint64_t{_random()} >> below(64);
            case 2:
                return static_cast<std::int64_t>(_random()) >> below(63);
            case 3:
                return static_cast<double>(
                    std::bit_cast<float>(static_cast<std::uint32_t>(_random())));
            case 4:
                return std::bit_cast<double>(std::uint64_t{_random()});
            case 5:
                return text();
            case 6:
                return data();
            case 7:
                return array(levels - 1);
            default:
                return dictionary(levels - 1);
        }
    }

    /// The middle of two singles, or a double beside it: where rounding twice goes wrong.
    [[nodiscard]] double middleOfTwoSingles() {
        const auto exponent = static_cast<int>(below(250)) - 124;
        const double middle =
            std::ldexp(static_cast<double>((below(1U << 24U) << 1U) | 1U), exponent - 24);
        const auto beside = std::bit_cast<std::uint64_t>(middle) + below(3) - 1;
        return std::bit_cast<double>(beside);
    }

    [[nodiscard]] PropertyValue array(int levels) {
        PropertyValue array = PropertyValue::array();
        for (std::uint64_t i = below(20); i > 0; --i) {
            array.push_back(value(levels));
        }
        return array;
    }

 private:
    std::uint64_t below(std::uint64_t end) { return _random() % end; }

    std::string text() {
        static const std::vector<std::string> pieces = {
            "a", " ", "\n", "\t", "&", "<", ">", "]]>", "\"", "'", "é", "☾", "\U0001F319", "\x7F"};
        std::string text;
        for (std::uint64_t i = below(20); i > 0; --i) {
            text += pieces[below(pieces.size())];
        }
        return text;
    }

    PropertyValue data() {
        std::vector<std::uint8_t> bytes(below(300));
        for (auto& byte : bytes) {
            byte = static_cast<std::uint8_t>(_random());
        }
        return PropertyValue::binary(std::move(bytes));
    }

    PropertyValue dictionary(int levels) {
        PropertyValue dictionary = PropertyValue::object();
        for (std::uint64_t i = below(20); i > 0; --i) {
            dictionary[text()] = value(levels);
        }
        return dictionary;
    }

    std::mt19937_64 _random{20260101};
};

}  // namespace tonquil
