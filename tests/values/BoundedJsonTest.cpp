// SPDX-License-Identifier: MIT
#include "values/BoundedJson.h"

#include <gtest/gtest.h>

#include <string>

namespace tonquil {
namespace {

std::string nested(std::size_t levels) {
    return std::string(levels, '[') + std::string(levels, ']');
}

std::string items(std::size_t count) {
    std::string text = "[0";
    for (std::size_t i = 1; i < count; ++i) {
        text += ",0";
    }
    return text + "]";
}

TEST(BoundedJson, ReadsUpToItsBoundsAndNoFurther) {
    struct Row {
        const char* what;
        std::string text;
        bool isRead;
    };
    const std::vector<Row> rows = {
        {"16 levels", nested(16), true},
        {"17 levels", nested(17), false},
        {"a million levels", std::string(1'000'000, '['), false},
        {"levels that begin by closing", std::string(100, ']') + std::string(100, '['), false},
        {"4,096 separators", items(4097), true},
        {"4,097 separators", items(4098), false},
        {"NUL at the end", std::string("1\0", 2), false},
        {"nothing", "", false},
        {"an end too many", "[]]", false},
        {"no UTF-8", "\"\xFF\"", false},
        {"half a surrogate pair", R"("\ud800")", false},
        {"a number beyond double", "1e999", false},
        {"a comment", "/* */ 1", false},
        {"not a number", "NaN", false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(readBoundedJson(row.text).has_value(), row.isRead) << row.what;
    }
}

TEST(BoundedJson, KeepsTheTypesApart) {
    const auto value = readBoundedJson(R"({"a":[1,1.0,-1,"1",true,null],"a":[1,1.0]})");
    ASSERT_TRUE(value);
    EXPECT_EQ(value->dump(), R"({"a":[1,1.0]})");
}

}  // namespace
}  // namespace tonquil
