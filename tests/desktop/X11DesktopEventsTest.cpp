// SPDX-License-Identifier: MIT
#include "platform/x11/desktop/X11DesktopEvents.h"

#include <gmock/gmock.h>

#include "tests/support/ManualRunLoop.h"
#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class X11Desktops : public testing::Test {
 protected:
    void SetUp() override {
        setWindows({1, 2, 3});
        events->start([this](SessionEvent event) { told.push_back(event); });
        loop.advance(0ms);
    }
    /// Takes the lowest bytes of the window IDs, which are four bytes long.
    void setWindows(const std::vector<std::uint8_t>& windows) {
        std::vector<std::uint8_t> bytes;
        for (const std::uint8_t window : windows) {
            bytes.insert(bytes.end(), {window, 0, 0, 0});
        }
        mustSucceed(server->setRootProperty("_NET_CLIENT_LIST", bytes));
        poll();
    }
    /// Handles the server's events.
    void poll() {
        while (loop.pollReadable(50ms) != 0) {
        }
    }
    ManualRunLoop loop;
    std::unique_ptr<XServer> server = XServer::start().value();
    std::vector<SessionEvent> told;
    std::vector<std::string> log;
    int losses = 0;
    std::unique_ptr<X11DesktopEvents> events =
        X11DesktopEvents::open(
            server->display().c_str(), loop,
            [this](std::string_view line) { log.emplace_back(line); }, [this] { ++losses; })
            .value();
};

TEST_F(X11Desktops, ReportsClosedWindowsAndLostServerOnce) {
    setWindows({1, 2, 3, 4, 5});
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre()) << "these are new";
    setWindows({5, 4, 3, 2});
    loop.advance(X11DesktopEvents::coalescingTime - 1ms);
    EXPECT_THAT(told, ElementsAre());
    setWindows({6, 5, 4, 2});
    loop.advance(1ms);
    EXPECT_EQ(told.size(), 1U) << "however often the list changes";
    loop.advance(1s);
    EXPECT_THAT(told, ElementsAre(SessionEvent::ApplicationTerminated));
    setWindows({});
    server->kill();
    EXPECT_EQ(loop.pollReadable(5s), 1U);
    EXPECT_EQ(loop.pollReadable(0ms), 0U);
    loop.advance(1s);
    EXPECT_EQ(losses, 1);
    EXPECT_EQ(log.size(), 1U);
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(X11Desktops, ReportsNewProfilesAndScreenSaverEnd) {
    for (const auto& [property, count] : {std::pair("_ICC_PROFILE", 1U),
                                          {"_ICC_PROFILE_23", 1U},
                                          {"_ICC_PROFILE_IN_X_VERSION", 0U},
                                          {"_NET_ACTIVE_WINDOW", 0U}}) {
        SCOPED_TRACE(property);
        mustSucceed(server->setRootProperty(property, {1, 2, 3, 4}));
        mustSucceed(server->setRootProperty(property, {}));
        poll();
        loop.advance(1s);
        EXPECT_EQ(told, std::vector(count, SessionEvent::ColourSpaceChanged));
        told.clear();
    }
    for (const char* command : {"activate", "reset"}) {
        EXPECT_THAT(told, ElementsAre());
        EXPECT_TRUE(run({.command = {"xset", "-display", server->display(), "s", command}})
                        .value()
                        .succeeded());
        poll();
    }
    EXPECT_THAT(told, ElementsAre(SessionEvent::ScreenSaverStopped));
}

}  // namespace
}  // namespace tonquil
