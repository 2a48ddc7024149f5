// SPDX-License-Identifier: MIT
#include "values/PropertyValue.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <string>

namespace tonquil {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr auto mostInteger = std::numeric_limits<std::int64_t>::max();
constexpr auto leastInteger = std::numeric_limits<std::int64_t>::min();

TEST(PropertyValue, GivesASingleForNumbersBooleansAndText) {
    const std::vector<std::pair<PropertyValue, float>> rows = {
        {true, 1.0F},
        {-3, -3.0F},
        {std::numeric_limits<std::uint64_t>::max(), 0x1p64F},
        {0.1, 0.1F},
        {1e300, infinity},
        {-1e300, -infinity},
        {3.4028235677973366e38, infinity},
        {3.40282356e38, std::numeric_limits<float>::max()},
        {" \t+0.5x", 0.5F},
        {"-.5e1", -5.0F},
        {"1e39", infinity},
        {"-1e39", -infinity},
        {"1e-60", 0.0F},
        {"", 0.0F},
        {" ", 0.0F},
        {"+", 0.0F},
        {"+-1", 0.0F},
        {"--1", 0.0F},
        {"abc", 0.0F},
        {"inf", 0.0F},
        {"-nan", 0.0F},
        // Too large and too small, each with an exponent or zeros that suggest the other.
        {"1" + std::string(100, '0') + "e-3", infinity},
        {"00001" + std::string(60, '0'), infinity},
        {"0." + std::string(400, '0') + "1e100", 0.0F},
        {"0." + std::string(100, '0') + "1", 0.0F},
        {"0." + std::string(30, '0') + "1e99", infinity},
        {"1e99999999999999999999", infinity},
        {"1e-99999999999999999999", 0.0F},
    };
    for (const auto& [value, expected] : rows) {
        SCOPED_TRACE(value.dump());
        ASSERT_TRUE(floatValue(value).has_value());
        EXPECT_EQ(*floatValue(value), expected);
    }
    for (const PropertyValue& value : {PropertyValue(nullptr), PropertyValue::array({1}),
                                       PropertyValue::object(), PropertyValue::binary({1})}) {
        EXPECT_FALSE(floatValue(value).has_value()) << value.dump();
        EXPECT_EQ(integerValue(value), 0) << value.dump();
    }
}

TEST(PropertyValue, GivesAnIntegerHeldAtTheEndsOfTheRange) {
    const std::vector<std::pair<PropertyValue, std::int64_t>> rows = {
        {true, 1},
        {-1.9, -1},
        {1.9, 1},
        {std::numeric_limits<double>::quiet_NaN(), 0},
        {9223372036854775808.0, mostInteger},
        {-9223372036854775808.0, leastInteger},
        {-1e300, leastInteger},
        {std::numeric_limits<std::uint64_t>::max(), mostInteger},
        {" +12ab", 12},
        {"-9223372036854775809", leastInteger},
        {"9223372036854775808", mostInteger},
        {"x1", 0},
        {"-", 0},
        {"1.9", 1},
    };
    for (const auto& [value, expected] : rows) {
        EXPECT_EQ(integerValue(value), expected) << value.dump();
    }
}

TEST(PropertyValue, FindsEntriesInDictionariesOnly) {
    const PropertyValue dictionary = {{"a", 1}};
    ASSERT_NE(entry(dictionary, "a"), nullptr);
    EXPECT_EQ(*entry(dictionary, "a"), 1);
    EXPECT_EQ(entry(dictionary, "b"), nullptr);
    EXPECT_EQ(entry(PropertyValue::array({"a"}), "a"), nullptr);
    EXPECT_EQ(entry(nullptr, "a"), nullptr);
}

}  // namespace
}  // namespace tonquil
