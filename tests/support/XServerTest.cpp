// SPDX-License-Identifier: MIT
#include "tests/support/XServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/EdidBuilder.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"

namespace tonquil {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> litConnectors(const RampReader& reader) {
    std::vector<std::string> names;
    for (const auto& output : reader.litOutputs().value_or(std::vector<OutputState>{})) {
        names.push_back(output.connector + " " + std::to_string(output.width) + "x" +
                        std::to_string(output.height));
    }
    return names;
}

TEST(XServer, PlugsDisplaysInAndOut) {
    const auto server = XServer::start();
    ASSERT_TRUE(succeeded(server));
    const auto reader = RampReader::connect((*server)->display());
    ASSERT_TRUE(succeeded(reader));
    EXPECT_THAT(litConnectors(*reader), ElementsAre("DUMMY0 1400x1050"));

    ASSERT_TRUE(succeeded((*server)->plug("DUMMY1", "1280x1024")));
    ASSERT_TRUE(succeeded((*server)->plug("DUMMY2", "1024x768")));
    EXPECT_THAT(litConnectors(*reader),
                ElementsAre("DUMMY0 1400x1050", "DUMMY1 1280x1024", "DUMMY2 1024x768"));
    ASSERT_TRUE(succeeded((*server)->setPhysicalSize("DUMMY1", 600, 340)));
    ASSERT_TRUE(succeeded((*server)->setPrimary("DUMMY2")));
    // Only what the server knows by now, without a new look at the outputs.
    EXPECT_THAT((*server)->xrandr({"--current"}).value_or(""),
                testing::AllOf(HasSubstr("600mm x 340mm"), HasSubstr("DUMMY2 connected primary"),
                               HasSubstr("DUMMY2 connected primary 1024x768+2680+0")));

    ASSERT_TRUE(succeeded((*server)->unplug("DUMMY1")));
    EXPECT_THAT(litConnectors(*reader), ElementsAre("DUMMY0 1400x1050", "DUMMY2 1024x768"));
    EXPECT_FALSE((*server)->unplug("DUMMY1").has_value()) << "It is out already.";
    ASSERT_TRUE(succeeded((*server)->plug("DUMMY1", "1280x1024")));
    EXPECT_THAT(litConnectors(*reader),
                ElementsAre("DUMMY0 1400x1050", "DUMMY1 1280x1024", "DUMMY2 1024x768"));
    EXPECT_FALSE((*server)->plug("NOWHERE", "1280x1024").has_value());
}

TEST(XServer, HoldsARampForEachOutput) {
    const auto server = XServer::start();
    ASSERT_TRUE(succeeded(server));
    ASSERT_TRUE(succeeded((*server)->plug("DUMMY1", "1280x1024")));
    const auto reader = RampReader::connect((*server)->display());
    ASSERT_TRUE(succeeded(reader));
    const auto untouched = reader->read("DUMMY1");
    ASSERT_TRUE(succeeded(untouched));
    ASSERT_EQ(untouched->red.size(), 256U);

    ASSERT_TRUE(succeeded((*server)->xrandr({"--output", "DUMMY0", "--gamma", "1:2:0.5"})));
    const auto foreign = reader->read("DUMMY0");
    ASSERT_TRUE(succeeded(foreign));
    EXPECT_NEAR(foreign->red[128], 65535 * 0.502, 300);
    EXPECT_NEAR(foreign->green[128], 65535 * 0.709, 300);
    EXPECT_NEAR(foreign->blue[128], 65535 * 0.252, 300);
    EXPECT_EQ(*reader->read("DUMMY1"), *untouched);

    Ramp ours = *foreign;
    std::reverse(ours.green.begin(), ours.green.end());
    ASSERT_TRUE(succeeded(reader->write("DUMMY1", ours)));
    EXPECT_EQ(*reader->read("DUMMY1"), ours);
    ours.green.pop_back();
    EXPECT_FALSE(reader->write("DUMMY1", ours).has_value());
    EXPECT_FALSE(reader->read("DUMMY2").has_value()) << "A dark output has no ramp.";
}

TEST(XServer, GivesAnOutputAnIdentityAndTakesItAway) {
    const auto server = XServer::start();
    ASSERT_TRUE(succeeded(server));
    ASSERT_TRUE(succeeded((*server)->setEdid("DUMMY0", buildEdid({.manufacturer = "DEL"}))));
    ASSERT_TRUE(succeeded((*server)->setRootProperty("_ICC_PROFILE", {1, 2, 3})));
    EXPECT_THAT((*server)->xrandr({"--props"}).value_or(""), HasSubstr("00ffffffffffff0010ac"));
    ASSERT_TRUE(succeeded((*server)->setEdid("DUMMY0", {})));
    EXPECT_THAT((*server)->xrandr({"--props"}).value_or(""), testing::Not(HasSubstr("EDID")));
}

TEST(XServer, LeavesNothingBehindWhenItIsKilled) {
    auto server = XServer::start();
    ASSERT_TRUE(succeeded(server));
    const auto reader = RampReader::connect((*server)->display());
    ASSERT_TRUE(succeeded(reader));
    const std::filesystem::path socket = "/tmp/.X11-unix/X" + (*server)->display().substr(1);
    EXPECT_TRUE(std::filesystem::exists(socket));
    (*server)->kill();
    EXPECT_FALSE(std::filesystem::exists(socket));
    EXPECT_FALSE(reader->read("DUMMY0").has_value());
    EXPECT_FALSE((*server)->plug("DUMMY1", "1280x1024").has_value());
}

TEST(XServer, CanBeAFramebufferWithOneOutput) {
    const auto server = XServer::start({.arguments = {}, .framebufferOnly = true});
    ASSERT_TRUE(succeeded(server));
    const auto reader = RampReader::connect((*server)->display());
    ASSERT_TRUE(succeeded(reader));
    EXPECT_THAT(litConnectors(*reader), ElementsAre("screen 1280x1024"));
}

TEST(XServer, CanLackTheRandrExtension) {
    const auto server =
        XServer::start({.arguments = {"-extension", "RANDR"}, .framebufferOnly = false});
    ASSERT_TRUE(succeeded(server));
    EXPECT_FALSE(RampReader::connect((*server)->display()).has_value());
}

}  // namespace
}  // namespace tonquil
