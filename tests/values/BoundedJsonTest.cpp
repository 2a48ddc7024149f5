// SPDX-License-Identifier: MIT
#include "values/BoundedJson.h"

#include <gtest/gtest.h>

#include <string>

namespace tonquil {
namespace {

TEST(BoundedJson, ReadsUpToItsBoundsAndNoFurther) {
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
