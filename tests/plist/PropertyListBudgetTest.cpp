// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "Bytes.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {
namespace {

using namespace std::string_literals;

TEST(PropertyListBudget, HoldsReadersAndWriterToTheSameLimits) {
    // Four values on three levels, with 1 + 3 + 2 bytes of key, text and data.
    const PropertyValue value = {{"k", {"☾", PropertyValue::binary({0, 0})}}};
    const std::string xml =
        "<plist><dict><key>k</key><array><string>☾</string><data>AAA=</data></array></dict></"
        "plist>";
    const std::string binary =
        BinaryList{{"\xD1\x01\x02", "\x51k", "\xA2\x03\x04", "\x61\x26\x3E", "\x42\0\0"s}}.bytes();

    struct Row {
        const char* what;
        PropertyListBudget budget;
        bool fits;
    };
    constexpr std::size_t enough = 1000;
    const std::vector<Row> rows = {
        {"all at the limit", {enough, 3, 4, 6}, true},
        {"a level less", {enough, 2, 4, 6}, false},
        {"a value less", {enough, 3, 3, 6}, false},
        {"a byte of text less", {enough, 3, 4, 5}, false},
        {"a file of few bytes", {50, 3, 4, 6}, false},
        {"nothing at all", {0, 0, 0, 0}, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(readPropertyList(bytesOf(xml), row.budget).has_value(), row.fits);
        EXPECT_EQ(readPropertyList(bytesOf(binary), row.budget).has_value(), row.fits);
        EXPECT_EQ(writePropertyList(value, row.budget).has_value(), row.fits);
    }
    for (const std::string& file : {xml, binary}) {
        EXPECT_TRUE(readPropertyList(bytesOf(file), {file.size(), 3, 4, 6}));
        EXPECT_FALSE(readPropertyList(bytesOf(file), {file.size() - 1, 3, 4, 6}));
    }
}

TEST(PropertyListBudget, RefusesNestingOfAnyDepthWithoutUsingTheStack) {
    for (const char* const element : {"array", "dict><key/"}) {
        std::string text = "<plist>";
        while (text.size() < 1'000'000) {
            text.append("<").append(element).append(">");
        }
        const auto value = readPropertyList(bytesOf(text));
        ASSERT_FALSE(value);
        EXPECT_EQ(value.error().detail, "more than 32 levels in line 1");
    }
}

TEST(PropertyListBudget, CountsASharedObjectEachTimeItIsReferredTo) {
    constexpr std::size_t times = 60'000;
    const auto shared = [](std::size_t length) {
        std::string references;
        for (std::size_t i = 0; i < times; ++i) {
            references += '\x01';
        }
        const std::string text =
            "\x5F\x11" + BinaryList::number(length, 2) + std::string(length, 'a');
        return BinaryList{{"\xAF\x12" + BinaryList::number(times, 4) + references, text}, 4}
            .bytes();
    };
    const auto small = readPropertyList(bytesOf(shared(16)));
    ASSERT_TRUE(small) << small.error().detail;
    EXPECT_EQ(small->size(), times);
    const auto large = readPropertyList(bytesOf(shared(80)));
    ASSERT_FALSE(large);
    EXPECT_EQ(large.error().detail, "more than 4194304 bytes of text and data");
}

TEST(PropertyListBudget, RefusesArraysThatDoubleAtEveryLevel) {
    BinaryList list;
    for (char next = 1; next < 30; ++next) {
        list.objects.push_back("\xA2"s + next + next);
    }
    list.objects.emplace_back("\x08");
    const auto value = readPropertyList(bytesOf(list.bytes()));
    ASSERT_FALSE(value);
    EXPECT_EQ(value.error().detail, "more than 65536 values");
}

}  // namespace
}  // namespace tonquil
