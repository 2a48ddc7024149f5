// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "Bytes.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {
namespace {

using namespace std::string_literals;

TEST(BinaryPropertyList, ReadsEveryType) {
    // Objects on the left, their JSON equivalent on the right.
    const std::string table =
        R"(08 → false | 09 → true | 10FF → 255 | 11FFFE → 65534 | 12FFFFFFFE → 4294967294
13FFFFFFFFFFFFFFFF → -1 | 137FFFFFFFFFFFFFFF → 9223372036854775807
140000000000000000FFFFFFFFFFFFFFFF → 18446744073709551615 | 14FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF → -1
223F000000 → 0.5 | 23BFB999999999999A → -0.1 | 33BFE0000000000000 → "2000-12-31T23:59:59Z"
40 → {"bytes":[],"subtype":null} | 4200FF → {"bytes":[0,255],"subtype":null}
4F10017A → {"bytes":[122],"subtype":null} | 4F1300000000000000017A → {"bytes":[122],"subtype":null}
50 → "" | 526869 → "hi" | 62263E00E9 → "☾é" | 62D83CDF19 → "🌙" | 8007 → 7 | 82010000 → 65536
8F00000000000000000000000000000009 → 9 | A0 → [] | A20102 08 1005 → [false,5]
A20101 08 → [false,false] | C101 08 → [false] | D0 → {}
D201020304 517A 61263E 08 09 → {"z":false,"☾":true} | D201020304 517A 61007A 08 09 → {"z":true})";
    for (const std::string& row : cellsOf(table)) {
        const auto sides = split(row, " → ");
        for (const std::size_t offsetSize : {1U, 3U, 8U}) {
            EXPECT_EQ(read(binaryList(sides.at(0), offsetSize)), sides.at(1)) << row;
        }
    }
}

TEST(BinaryPropertyList, ReadsReferencesOfEverySizeAndAnyRootObject) {
    for (std::size_t size = 1; size <= 8; ++size) {
        const std::string zeros(2 * size - 2, '0');
        const std::string objects = "08 516B D1" + zeros + "01" + zeros + "00";
        EXPECT_EQ(read(binaryList(objects, 1, size, 2)), R"({"k":false})") << size;
    }
}

TEST(BinaryPropertyList, RefusesDamagedObjects) {
    const std::vector<std::string> tables = {
        // Unknown types, and sizes that a type does not have.
        "00 | 0F | 70 | 15" + std::string(64, '0') + " | 217A7A | 327A7A7A7A",
        // Truncated contents.
        "1331323334353637 | 437A7A | 62006100",
        // Integers beyond 64 bits.
        "1401000000000000000000000000000000 | 14FFFFFFFFFFFFFFFF0000000000000000",
        // Dates: NaN, infinite, one second after the last, one second before the first.
        "337FF8000000000000 | 337FF0000000000000 | 33424D62D23C800000 | 33C22D63C37F020000",
        // Counts: missing, not an integer, truncated, past the end, and overflowing when doubled.
        "4F | 4F08 | 4F1101 | 4F13FFFFFFFFFFFFFFFF | 6F138000000000000000",
        // Text: not ASCII, NUL in both encodings, unpaired surrogates.
        "526880 | 5100 | 610000 | 61D83C | 61DF19 | 62D83C0061",
        // Dangling references, keys that are not text, and lists that contain themselves.
        "A101 | D10102 1005 08 | D10102 416B 08 | A100 | A101 A100 | D10100 516B"};
    for (const std::string& table : tables) {
        for (const std::string& objects : cellsOf(table)) {
            EXPECT_EQ(read(binaryList(objects)), "refused") << objects;
        }
    }
}

TEST(BinaryPropertyList, RefusesDamagedTrailerAndOffsetTable) {
    const std::string whole = binaryList("A101 427A7A");
    ASSERT_EQ(read(whole), R"([{"bytes":[122,122],"subtype":null}])");
    // Distance from the end and bytes to overwrite: sizes of offsets and of references, number of
    // objects, root object, position of the offset table, and the two offsets in the table, the
    // last of which makes an object end inside the table.
    for (const std::string& row : cellsOf(R"(26 00 | 26 02 | 26 09 | 25 00 | 25 09
24 0000000000000003 | 24 FFFFFFFFFFFFFFFF | 16 0000000000000002
8 0000000000000007 | 8 000000000000000E | 8 FFFFFFFFFFFFFFFF | 34 07 | 33 0D | 33 0C)")) {
        std::string damaged = whole;
        const auto bytes = bytesFromHex(row.substr(row.find(' ') + 1));
        damaged.replace(damaged.size() - std::stoul(row), bytes.size(), bytes);
        EXPECT_EQ(read(damaged), "refused") << row;
    }
    for (std::size_t size = 6; size < whole.size(); ++size) {
        EXPECT_EQ(read(whole.substr(0, size)), "refused") << size;
    }
    EXPECT_EQ(read(whole + "\0"s), "refused");
    EXPECT_EQ(read("bplist1" + whole.substr(7)), "refused");
    EXPECT_EQ(read("bplist0z" + whole.substr(8)), read(whole));
}

TEST(PropertyListBudget, LimitsReadersAndWriterAlike) {
    // Four values on three levels, with 1 + 3 + 2 bytes of key, text and data.
    const PropertyValue value = {{"k", {"☾", PropertyValue::binary({0, 0})}}};
    const auto xml = bytesOf(
        "<plist><dict><key>k</key><array><string>☾</string><data>AAA=</data></array></dict>"
        "</plist>");
    const auto binary = bytesOf(binaryList("D10102 516B A20304 61263E 420000"));
    const std::vector<std::pair<PropertyListBudget, bool>> rows = {{{1000, 3, 4, 6}, true},
                                                                   {{1000, 2, 4, 6}, false},
                                                                   {{1000, 3, 3, 6}, false},
                                                                   {{1000, 3, 4, 5}, false},
                                                                   {{50, 3, 4, 6}, false}};
    for (const auto& [budget, fits] : rows) {
        SCOPED_TRACE(testing::PrintToString(budget));
        EXPECT_EQ(readPropertyList(xml, budget).has_value(), fits);
        EXPECT_EQ(readPropertyList(binary, budget).has_value(), fits);
        EXPECT_EQ(writePropertyList(value, budget).has_value(), fits);
    }
    EXPECT_TRUE(readPropertyList(xml, {xml.size(), 3, 4, 6}));
}

TEST(PropertyListBudget, RefusesAnyNestingDepthWithoutUsingTheStack) {
    for (const char* const element : {"<array>", "<dict><key/>"}) {
        std::string text = "<plist>\n";
        for (int level = 0; level < 80'000; ++level) {
            text += element;
        }
        const auto value = readPropertyList(bytesOf(text));
        ASSERT_FALSE(value);
        EXPECT_EQ(value.error().detail, "more than 32 levels in line 2");
    }
}

TEST(PropertyListBudget, CountsSharedObjectPerReference) {
    // Arrays that hold the next one twice, and the leaf at the end.
    const auto doubled = [](std::uint64_t levels, const std::string& leaf) {
        std::string objects;
        for (std::uint64_t next = 1; next <= levels; ++next) {
            const std::string digits = {"01"[next / 16], "0123456789ABCDEF"[next % 16]};
            objects += "A2" + digits + digits + " ";
        }
        const auto value = readPropertyList(bytesOf(binaryList(objects + leaf, 2)));
        return value ? "read" : value.error().detail;
    };
    const std::string zeros(400, '0');
    EXPECT_EQ(doubled(15, "4F10C8" + zeros), "more than 4194304 bytes of text and data");
    EXPECT_EQ(doubled(14, "4F10C8" + zeros), "read");
    EXPECT_EQ(doubled(30, "08"), "more than 65536 values");
}

}  // namespace
}  // namespace tonquil
