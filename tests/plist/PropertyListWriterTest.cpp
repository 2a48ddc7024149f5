// SPDX-License-Identifier: MIT
#include "plist/PropertyListWriter.h"

#include <gtest/gtest.h>

#include <limits>

#include "Bytes.h"
#include "RandomValue.h"
#include "SameValue.h"
#include "plist/PropertyListReader.h"

namespace tonquil {
namespace {

TEST(PropertyListWriter, WritesTheUsualForm) {
    const PropertyValue value = {{"b", {1, 1.0, 0.1, static_cast<double>(0.1F)}},
                                 {"a&", PropertyValue::binary(std::vector<std::uint8_t>(58))},
                                 {"c", {{"on", true}, {"none", PropertyValue::array()}}}};
    EXPECT_EQ(writePropertyList(value).value_or("none"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
              "<plist version=\"1.0\">\n"
              "<dict>\n"
              "\t<key>a&amp;</key>\n"
              "\t<data>\n"
              "\t" +
                  std::string(76, 'A') +
                  "\n"
                  "\tAA==\n"
                  "\t</data>\n"
                  "\t<key>b</key>\n"
                  "\t<array>\n"
                  "\t\t<integer>1</integer>\n"
                  "\t\t<real>1</real>\n"
                  "\t\t<real>0.1</real>\n"
                  "\t\t<real>0.1</real>\n"
                  "\t</array>\n"
                  "\t<key>c</key>\n"
                  "\t<dict>\n"
                  "\t\t<key>none</key>\n"
                  "\t\t<array/>\n"
                  "\t\t<key>on</key>\n"
                  "\t\t<true/>\n"
                  "\t</dict>\n"
                  "</dict>\n"
                  "</plist>\n");
}

TEST(PropertyListWriter, WritesWhatTheReaderReadsBack) {
    std::vector<PropertyValue> values = {
        "",
        " a\r\n\rb\t",
        "]]>&amp;<!-- -->",
        "\uFFFD\U0010FFFF\u0085",
        std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN(),
        -0.0,
        std::numeric_limits<double>::max(),
        std::numeric_limits<double>::denorm_min(),
        // Its shortest digits lie above the middle of two singles, itself in the middle.
        1.000000059604644775390625,
        std::numeric_limits<std::uint64_t>::max(),
        std::numeric_limits<std::int64_t>::min(),
        PropertyValue::object(),
        PropertyValue::binary({}),
    };
    RandomValue random;
    for (int i = 0; i < 300; ++i) {
        values.push_back(random.value(4));
        values.emplace_back(random.middleOfTwoSingles());
    }
    PropertyListBudget budget;
    budget.mostBytes = std::size_t{1} << 30U;
    for (const PropertyValue& value : values) {
        const auto text = writePropertyList(value, budget);
        ASSERT_TRUE(text) << text.error().sentence;
        const auto again = readPropertyList(bytesOf(*text), budget);
        ASSERT_TRUE(again) << again.error().detail << *text;
        ASSERT_TRUE(isSameValue(value, *again)) << *text;
    }
}

TEST(PropertyListWriter, RefusesWhatTheReaderCouldNotReadBack) {
    const std::vector<PropertyValue> rows = {
        nullptr,
        PropertyValue::array({1, nullptr}),
        PropertyValue(PropertyValue::value_t::discarded),
        std::string("a\0b", 3),
        "\x01",
        "\x1F",
        "\v",
        "\uFFFE",
        "\uFFFF",
        "\x80",
        "\xC3",
        "\xC0\xAF",
        "\xE0\x80\xAF",
        "\xED\xA0\x80",
        "\xF4\x90\x80\x80",
        "\xF8\x88\x80\x80\x80",
        {{"\x01", true}},
        {{"\xFF", true}},
        {{"k", {{"l", "\x02"}}}},
    };
    for (const PropertyValue& value : rows) {
        const auto text = writePropertyList(value);
        ASSERT_FALSE(text) << *text;
        EXPECT_FALSE(text.error().sentence.empty());
    }
}

}  // namespace
}  // namespace tonquil
