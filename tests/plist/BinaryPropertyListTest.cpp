// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <bit>
#include <limits>

#include "Bytes.h"
#include "SameValue.h"
#include "plist/PropertyListReader.h"

namespace tonquil {
namespace {

using namespace std::string_literals;

Result<PropertyValue> read(const std::string& bytes) {
    return readPropertyList(bytesOf(bytes));
}

/// The contents of an object of 8 bytes.
std::string real(double value) {
    return BinaryList::number(std::bit_cast<std::uint64_t>(value), 8);
}

constexpr double day = 86400;  // seconds

TEST(BinaryPropertyList, ReadsEachTypeAsItsOwn) {
    const std::string high = "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF";
    const std::vector<std::pair<std::vector<std::string>, PropertyValue>> rows = {
        {{"\x08"}, false},
        {{"\x09"}, true},
        {{"\x10\xFF"}, 255U},
        {{"\x11\xFF\xFE"}, 65534U},
        {{"\x12\xFF\xFF\xFF\xFE"}, 4294967294U},
        {{"\x13" + high}, -1},
        {{"\x13\x7F" + high.substr(1)}, std::uint64_t{std::numeric_limits<std::int64_t>::max()}},
        {{"\x14" + BinaryList::number(1, 16)}, 1U},
        {{"\x14"s + std::string(8, '\0') + high}, std::numeric_limits<std::uint64_t>::max()},
        {{"\x14" + high + high}, -1},
        {{"\x22\x3F\x00\x00\x00"s}, 0.5},
        {{"\x22\x7F\x80\x00\x00"s}, std::numeric_limits<double>::infinity()},
        {{"\x23" + real(-0.1)}, -0.1},
        {{"\x33" + real(0)}, "2001-01-01T00:00:00Z"},
        {{"\x33" + real(-0.5)}, "2000-12-31T23:59:59Z"},
        {{"\x33" + real(6998 * day + 3723.9)}, "2020-02-29T01:02:03Z"},
        {{"\x33" + real(-730485 * day)}, "0001-01-01T00:00:00Z"},
        {{"\x33" + real(2921574 * day - 1)}, "9999-12-31T23:59:59Z"},
        {{"\x40"}, PropertyValue::binary({})},
        {{"\x42\x00\xFF"s}, PropertyValue::binary({0, 255})},
        {{"\x4F\x10\x01z"}, PropertyValue::binary({'z'})},
        {{"\x4F\x13\0\0\0\0\0\0\0\x01z"s}, PropertyValue::binary({'z'})},
        {{"\x50"}, ""},
        {{"\x52hi"}, "hi"},
        {{"\x62\x26\x3E\x00\xE9"s}, "☾é"},
        {{"\x62\xD8\x3C\xDF\x19"}, "\U0001F319"},
        {{"\x80\x07"}, 7U},
        {{"\x82\x01\x00\x00"s}, 65536U},
        {{"\x8F" + BinaryList::number(9, 16)}, 9U},
        {{"\xA0"}, PropertyValue::array()},
        {{"\xA2\x01\x02", "\x08", "\x10\x05"}, {false, 5U}},
        {{"\xA2\x01\x01", "\x08"}, {false, false}},
        {{"\xC1\x01", "\x08"}, PropertyValue::array({false})},
        {{"\xD0"}, PropertyValue::object()},
        {{"\xD2\x01\x02\x03\x04", "\x51z", "\x61\x26\x3E", "\x08", "\x09"},
         {{"z", false}, {"☾", true}}},
        {{"\xD2\x01\x02\x03\x04", "\x51z", "\x61\x00z"s, "\x08", "\x09"}, {{"z", true}}},
    };
    for (const auto& [objects, expected] : rows) {
        for (const std::size_t offsetSize : {1U, 2U, 3U, 8U}) {
            SCOPED_TRACE(testing::PrintToString(objects) + " " + std::to_string(offsetSize));
            const auto value = read(BinaryList{objects, offsetSize}.bytes());
            ASSERT_TRUE(value) << value.error().detail;
            EXPECT_TRUE(isSameValue(*value, expected)) << value->dump();
            EXPECT_EQ(value->type(), expected.type());
        }
    }
}

TEST(BinaryPropertyList, ReadsReferencesOfEverySizeAndAnyOutermostObject) {
    for (std::size_t size = 1; size <= 8; ++size) {
        SCOPED_TRACE(size);
        const std::string one = BinaryList::number(1, size);
        const BinaryList list{
            {"\x08", "\x51k", "\xD1" + one + BinaryList::number(0, size)}, 1, size, 2};
        const auto value = read(list.bytes());
        ASSERT_TRUE(value) << value.error().detail;
        EXPECT_EQ(*value, PropertyValue({{"k", false}}));
    }
}

TEST(BinaryPropertyList, RefusesObjectsThatAreDamaged) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<std::vector<std::string>> rows = {
        {"\x00"s},
        {"\x0F"},
        {"\x01"},
        {"\x0A"},  // null, fill and what nobody defined
        {"\x15" + std::string(32, '\0')},
        {"\x14\x01" + std::string(15, '\0')},
        {"\x14" + std::string(8, '\xFF') + std::string(8, '\0')},
        {"\x13"},
        {"\x13"
         "1234567"},
        {"\x20z"},
        {"\x21zz"},
        {"\x24" + std::string(16, '\0')},
        {"\x22zzz"},
        {"\x32zzzz"},
        {"\x33" + real(nan)},
        {"\x33" + real(infinity)},
        {"\x33" + real(-1e300)},
        {"\x33" + real(2921574 * day)},
        {"\x33" + real(-730485 * day - 1)},
        {"\x43zz"},
        {"\x52z"},
        {"\x62\0a\0"s},
        {"\x8Fz"},
        // Counts: absent, not an integer, too long an integer, cut short, and past every end.
        {"\x4F"},
        {"\x4F\x08"},
        {"\x4F\x14" + BinaryList::number(1, 16) + "z"},
        {"\x4F\x11\x01"},
        {"\x4F\x13" + std::string(8, '\xFF')},
        {"\x6F\x13\x80" + std::string(7, '\0')},
        {"\xAF\x13" + std::string(8, '\xFF')},
        {"\xDF\x13\x80" + std::string(7, '\0')},
        {"\xDF\x13\x7F" + std::string(7, '\xFF')},
        // Text.
        {"\x52h\x80"},
        {"\x51\0"s},
        {"\x61\0\0"s},
        {"\x61\xD8\x3C"},
        {"\x61\xDF\x19"},
        {"\x62\xD8\x3C\0a"s},
        {"\x62\xDF\x19\xD8\x3C"},
        // Types without a meaning.
        {"\x70"},
        {"\x90"},
        {"\xB0"},
        {"\xE0"},
        {"\xF0"},
        // References.
        {"\xA1\x01"},
        {"\xA1\xFF"},
        {"\xA2\x01", "\x08"},
        {"\xD1\x01", "\x51k"},
        {"\xD1\x01\x02", "\x10\x05", "\x08"},
        {"\xD1\x01\x01", "\xA0"},
        {"\xD1\x01\x02", "\x41k", "\x08"},
        {"\xA1\x01", "\x00"s},
        // Lists that contain themselves.
        {"\xA1\x00"s},
        {"\xA1\x01", "\xA1\x00"s},
        {"\xD1\x01\x00"s, "\x51k"},
        {"\xA2\x00\x00"s},
        {"\xAF\x10\x20" + std::string(32, '\0')},
    };
    for (const auto& objects : rows) {
        SCOPED_TRACE(testing::PrintToString(objects));
        const auto value = read(BinaryList{objects}.bytes());
        ASSERT_FALSE(value) << value->dump();
    }
}

TEST(BinaryPropertyList, RefusesAFrameThatIsDamaged) {
    const std::string whole = BinaryList{{"\xA1\x01", "\x42zz"}}.bytes();
    ASSERT_TRUE(read(whole));
    struct Row {
        const char* what;
        std::size_t fromEnd;
        std::string bytes;
    };
    const std::string most(8, '\xFF');
    const std::vector<Row> rows = {
        {"offsets of no size", 26, "\0"s},
        {"offsets of two bytes", 26, "\x02"},
        {"offsets of nine bytes", 26, "\x09"},
        {"references of no size", 25, "\0"s},
        {"references of nine bytes", 25, "\x09"},
        {"no objects", 24, BinaryList::number(0, 8)},
        {"one object more", 24, BinaryList::number(3, 8)},
        {"2^64-1 objects", 24, most},
        {"as many as overflow to two", 24, "\x80\0\0\0\0\0\0\x02"s},
        {"no such outermost object", 16, BinaryList::number(2, 8)},
        {"outermost object 2^64-1", 16, most},
        {"table in the magic", 8, BinaryList::number(7, 8)},
        {"table one byte later", 8, BinaryList::number(14, 8)},
        {"table in the trailer", 8, BinaryList::number(15, 8)},
        {"table at 2^64-1", 8, most},
        {"object in the magic", 34, "\x07"},
        {"object in the table", 33, "\x0D"},
        {"object beyond the file", 33, "\xFF"},
        {"object with its end in the table", 33, "\x0C"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        std::string damaged = whole;
        damaged.replace(damaged.size() - row.fromEnd, row.bytes.size(), row.bytes);
        const auto value = read(damaged);
        EXPECT_FALSE(value) << value->dump();
    }
    for (std::size_t size = 6; size < whole.size(); ++size) {
        EXPECT_FALSE(read(whole.substr(0, size))) << size;
    }
    EXPECT_FALSE(read(whole + "\0"s));
    std::string gap = BinaryList{{"\x08"}, 2}.bytes();
    EXPECT_TRUE(read(gap));
    EXPECT_FALSE(read(gap.insert(gap.size() - 32, 1, '\0')));
    EXPECT_FALSE(read("bplist1" + whole.substr(7)));
    EXPECT_TRUE(read("bplist0z" + whole.substr(8)));
}

}  // namespace
}  // namespace tonquil
