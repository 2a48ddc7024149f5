// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "values/BoundedJson.h"
#include "values/PropertyValue.h"
#include "values/Utf8.h"

namespace tonquil {
namespace {

TEST(PropertyValue, ConvertsNumbersBooleansAndTextToFloat) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    // Values and their floats, null for infinity. The last ones overflow or underflow, although
    // their exponent or zeros suggest the opposite.
    const auto rows = PropertyValue::parse(R"([[true, 1], [-3, -3],
        [18446744073709551615, 18446744073709551616.0], [3.4028235677973366e38, null],
        [3.40282356e38, 3.4028234663852886e38], [" \t+0.5x", 0.5], ["-.5e1", -5], ["1e39", null],
        ["1e-60", 0], ["", 0], [" ", 0], ["+-1", 0], ["inf", 0],
        ["1000000000000000000000000000000000000000000000000e-3", null],
        ["00001000000000000000000000000000000000000000000000", null],
        ["0.00000000000000000000000000000000000000000000000000000000000000000001e9", 0],
        ["0.00000000000000000000000000000001e99", null],
        ["1e99999999999999999999", null], ["1e-99999999999999999999", 0]])");
    for (const auto& row : rows) {
        EXPECT_EQ(floatValue(row[0]), row[1].is_null() ? infinity : row[1].get<float>()) << row[0];
    }
    EXPECT_EQ(floatValue(-1e300), -infinity);
    EXPECT_EQ(floatValue("-1e39"), -infinity);
    for (const PropertyValue& value : {PropertyValue(nullptr), PropertyValue::array({1}),
                                       PropertyValue::object(), PropertyValue::binary({1})}) {
        EXPECT_EQ(floatValue(value), std::nullopt) << value.dump();
        EXPECT_EQ(integerValue(value), 0) << value.dump();
    }
}

TEST(PropertyValue, ClampsIntegersToTheirRange) {
    for (const auto& row : PropertyValue::parse(R"([[true, 1], [-1.9, -1],
        [9223372036854775808.0, 9223372036854775807], [-1e300, -9223372036854775808],
        [18446744073709551615, 9223372036854775807], [" +12ab", 12], ["x1", 0], ["-", 0],
        ["-9223372036854775809", -9223372036854775808], ["1.9", 1],
        ["9223372036854775808", 9223372036854775807]])")) {
        EXPECT_EQ(integerValue(row[0]), row[1].get<std::int64_t>()) << row[0];
    }
    EXPECT_EQ(integerValue(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Utf8, RefusesSurrogatesOnly) {
    for (const char* const text : {"\xED\xA0\x80", "\xED\xBF\xBF"}) {
        EXPECT_FALSE(isUtf8(text));
    }
    EXPECT_TRUE(isUtf8("\xED\x9F\xBF\xEE\x80\x80")) << "their neighbours";
}

TEST(BoundedJson, ReadsOnlyWithinItsBounds) {
    std::string separated = "[0";
    for (int separator = 0; separator < 4096; ++separator) {
        separated += ",0";
    }
    EXPECT_TRUE(readBoundedJson(std::string(16, '[') + std::string(16, ']')));
    EXPECT_TRUE(readBoundedJson(separated + "]"));
    for (const std::string& text :
         {std::string(17, '[') + std::string(17, ']'), std::string(1'000'000, '['),
          separated + ",0]", std::string("1\0", 2), std::string(), std::string("[]]"),
          std::string("\"\xFF\""), std::string("1e999")}) {
        EXPECT_FALSE(readBoundedJson(text)) << text.substr(0, 40);
    }
}

}  // namespace
}  // namespace tonquil
