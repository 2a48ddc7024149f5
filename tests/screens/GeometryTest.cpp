// SPDX-License-Identifier: MIT
#include "screens/Geometry.h"

#include <gtest/gtest.h>

namespace tonquil {
namespace {

TEST(Rectangle, OwnsTwoOfItsEdges) {
    const Rectangle rectangle{10, 20, 30, 40};
    EXPECT_TRUE(rectangle.contains(Point{10, 20}));
    EXPECT_TRUE(rectangle.contains(Point{39.5, 59.5}));
    EXPECT_FALSE(rectangle.contains(Point{40, 30}));
    EXPECT_FALSE(rectangle.contains(Point{20, 60}));
    EXPECT_FALSE(rectangle.contains(Point{9.9, 30}));
}

TEST(Rectangle, ContainsAndIntersectsOnlyWhatIsNotEmpty) {
    const Rectangle rectangle{0, 0, 100, 50};
    EXPECT_TRUE(rectangle.contains(rectangle));
    EXPECT_TRUE(rectangle.contains(Rectangle{1, 1, 99, 49}));
    EXPECT_FALSE(rectangle.contains(Rectangle{1, 1, 100, 1}));
    EXPECT_FALSE(rectangle.contains(Rectangle{5, 5, 0, 0}));
    EXPECT_TRUE(rectangle.intersects(Rectangle{99, 49, 5, 5}));
    EXPECT_FALSE(rectangle.intersects(Rectangle{100, 0, 5, 5})) << "they only touch";
    EXPECT_FALSE(rectangle.intersects(Rectangle{0, 50, 5, 5})) << "they only touch";
    EXPECT_FALSE(rectangle.intersects(Rectangle{5, 5, 0, 9}));
}

}  // namespace
}  // namespace tonquil
