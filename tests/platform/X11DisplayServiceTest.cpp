// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11DisplayService.h"

#include <gtest/gtest.h>

#include "screens/ScreenRegistry.h"
#include "tests/support/EdidBuilder.h"
#include "tests/support/RampReader.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

TEST(X11DisplayService, IdentifiesDisplaysByEdidOrSize) {
    const auto server = XServer::start().value();
    mustSucceed(server->setEdid(
        "DUMMY0", buildEdid({.manufacturer = "DEL", .product = 41, .serial = 77, .name = "Left"})));
    mustSucceed(server->plug("DUMMY1", "1280x1024"));
    mustSucceed(server->setPhysicalSize("DUMMY1", 600, 340));
    mustSucceed(server->plug("DUMMY2", "1024x768"));
    mustSucceed(server->setEdid(
        "DUMMY2", buildEdid({.manufacturer = "DEL", .product = 42, .serialText = "ABC123"})));
    mustSucceed(server->xrandr({"--output", "DUMMY2", "--primary"}));

    const auto service = X11DisplayService::open(server->display().c_str(), nullptr, {}).value();
    ScreenRegistry registry(*service);
    std::vector<std::string> found;
    for (const auto& screen : registry.screens()) {
        const DisplayDescription description = service->description(screen->directDisplayID());
        found.push_back(description.connector + " " + description.productName + " " +
                        screen->referenceID());
    }
    EXPECT_EQ(found,
              (std::vector<std::string>{"DUMMY2  1166364645-42-4268", "DUMMY0 Left 77-41-4268",
                                        "DUMMY1  600.000000x340.000000-3263106238-0"}));
    // Without a primary output the main display is the one at the origin.
    mustSucceed(server->xrandr({"--noprimary", "--output", "DUMMY0", "--pos", "3000x0", "--output",
                                "DUMMY1", "--pos", "0x0"}));
    ASSERT_EQ(service->onlineDisplays(25).size(), 3U);
    EXPECT_EQ(service->description(0).connector, "DUMMY1");
}

TEST(X11DisplayService, TellsWhichCrtcsTheirDisplaysLeft) {
    const auto display = [](xcb_randr_output_t output, xcb_randr_crtc_t crtc) {
        X11Display made;
        made.output = output;
        made.crtc = crtc;
        return made;
    };
    const std::vector<X11Display> before{display(1, 10), display(2, 20)};
    EXPECT_TRUE(crtcsLeft(before, before).empty());
    // The displays swap their CRTCs; then one goes.
    const std::vector<X11Display> swapped{display(1, 20), display(2, 10)};
    EXPECT_EQ(crtcsLeft(before, swapped), (std::vector<xcb_randr_crtc_t>{10, 20}));
    EXPECT_EQ(crtcsLeft(before, std::span(before).first(1)), (std::vector<xcb_randr_crtc_t>{20}));
}

TEST(X11DisplayService, CompactsAndRepairsJournal) {
    const auto server = XServer::start().value();
    const RampReader reader = RampReader::connect(server->display()).value();
    const Ramp system = reader.read("DUMMY0").value();
    const auto open = [&] {
        return X11DisplayService::open(server->display().c_str(), nullptr, {}).value();
    };
    const auto service = open();
    GammaTable table;
    for (int edit = 0; edit < 3'000; ++edit) {
        table.channel(0)[7] = static_cast<float>(edit) / 3'000.0F;
        service->setTransferTable(0, table);
    }
    const auto connection = X11Connection::open(server->display().c_str()).value();
    const auto bytes = connection->rootProperty(connection->correctionsAtom(), 1U << 20U);
    EXPECT_LT(bytes.size(), 32'768U);
    // Another client replaces it; appending to a property of another type fails.
    for (int round = 0; round < 3; ++round) {
        mustSucceed(server->setRootProperty("_TONQUIL_CORRECTIONS", {1, 2, 3}));
        service->setTransferTable(0, table);
        open()->setTransferTable(0, table);
        mustSucceed(server->setRootProperty("_TONQUIL_CORRECTIONS", {1, 2, 3}));
        open()->setTransferTable(0, table);
    }
    open()->restoreSystemCalibration();
    EXPECT_EQ(reader.read("DUMMY0").value(), system);
}

}  // namespace
}  // namespace tonquil
