// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "Bytes.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

namespace tonquil {
namespace {

TEST(PropertyListBudget, HoldsReadersAndWriterToTheSameLimits) {
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

TEST(PropertyListBudget, RefusesNestingOfAnyDepthWithoutUsingTheStack) {
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

TEST(PropertyListBudget, CountsASharedObjectEachTimeItIsReferredTo) {
    // Arrays of twice the next one, and at the end the leaf.
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
