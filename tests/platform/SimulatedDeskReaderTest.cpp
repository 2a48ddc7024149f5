// SPDX-License-Identifier: MIT
#include "platform/simulated/SimulatedDeskReader.h"

#include <gtest/gtest.h>

namespace tonquil {
namespace {

TEST(SimulatedDeskReader, FillsInWhatIsLeftOut) {
    auto desk = readSimulatedDesk(R"([{}, {"id": 9, "rampSize": 1024, "bounds": [0, 0, 10, 20]},
                                      {"connector": "eDP-1", "builtIn": true}])");
    ASSERT_TRUE(desk);
    ASSERT_EQ(desk->displays().size(), 3U);
    EXPECT_EQ(desk->displays()[0].connector, "SIM-1");
    EXPECT_EQ(desk->displays()[0].ramp.channel(2)[255], 65280) << "as a server's own ramp";
    EXPECT_EQ(desk->displays()[1].ramp.channel(0)[1023], 65472);
    EXPECT_EQ(desk->displays()[2].id, 10U);
    EXPECT_EQ(desk->displays()[2].bounds.x, 10);
    EXPECT_TRUE(desk->displays()[2].identity.isBuiltIn);
}

TEST(SimulatedDeskReader, RefusesWhatIsNoDesk) {
    for (const char* text : {"", "{}", "[1, 2", R"([{"id": 3}, {"id": 3}])", R"([{"id": 0}])"}) {
        EXPECT_FALSE(readSimulatedDesk(text)) << text;
    }
    EXPECT_TRUE(readSimulatedDesk("[]")) << "a desk without displays is one";
}

}  // namespace
}  // namespace tonquil
