// SPDX-License-Identifier: MIT
#include "platform/x11/desktop/X11WindowSystem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <chrono>
#include <functional>
#include <vector>

#include "tests/support/Succeeded.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

class X11WindowSystems : public testing::Test {
 protected:
    void SetUp() override {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection, desk.root(), XCB_CW_EVENT_MASK, &mask);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, desk.root(), 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                          &mask);
        synchronise();
    }
    void synchronise() {
        mustSucceed(desk.check(xcb_no_operation_checked(connection), "The X server has gone."));
    }
    [[nodiscard]] xcb_atom_t atom(const char* name) { return desk.atom(name).value(); }
    [[nodiscard]] std::vector<std::uint32_t> values(const char* property) {
        const XcbReply<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(connection,
                                   xcb_get_property(connection, 0, window, atom(property),
                                                    XCB_GET_PROPERTY_TYPE_ANY, 0, 100),
                                   nullptr));
        const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {first, first + reply->value_len};
    }
    /// Waits for what another program does to the properties of the window and the root.
    [[nodiscard]] bool becomes(const std::function<bool()>& condition) {
        const auto end = std::chrono::steady_clock::now() + 20s;
        while (!condition()) {
            while (const XcbReply<xcb_generic_event_t> ignored{xcb_poll_for_event(connection)}) {
            }
            pollfd waiting{xcb_get_file_descriptor(connection), POLLIN, 0};
            poll(&waiting, 1, 100);
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
        }
        return true;
    }
    [[nodiscard]] std::unique_ptr<BackgroundProcess> startManager() {
        auto manager = BackgroundProcess::start({.command = {"openbox", "--sm-disable"},
                                                 .environment = {{"DISPLAY", server->display()}}})
                           .value();
        EXPECT_TRUE(becomes([this] { return system->hasWindowManager(); }));
        return manager;
    }

    std::unique_ptr<XServer> server = XServer::start().value();
    XcbOutputs desk = XcbOutputs::connect(server->display()).value();
    xcb_connection_t* connection = desk.connection();
    xcb_window_t window = xcb_generate_id(connection);
    std::unique_ptr<X11WindowSystem> system =
        X11WindowSystem::open(server->display().c_str()).value();
    std::vector<std::uint32_t> skipped{atom("_NET_WM_STATE_SKIP_TASKBAR"),
                                       atom("_NET_WM_STATE_SKIP_PAGER")};
};

TEST_F(X11WindowSystems, AWindowManagerFollowsForWindowsThatAreShownAndMinimised) {
    xcb_map_window(connection, window);
    synchronise();
    const auto manager = startManager();
    ASSERT_TRUE(becomes([&] { return !values("WM_STATE").empty(); }));
    ASSERT_THAT(values("_NET_WM_DESKTOP"), Not(Contains(0xFFFFFFFFU)));
    system->keepOnAllWorkspaces(window);
    system->skipTaskbar(window, true);
    EXPECT_TRUE(becomes([&] {
        return testing::Value(values("_NET_WM_DESKTOP"), ElementsAre(0xFFFFFFFFU)) &&
               testing::Value(values("_NET_WM_STATE"), IsSupersetOf(skipped));
    }));

    EXPECT_TRUE(run({.command = {"xdotool", "windowminimize", std::to_string(window)},
                     .environment = {{"DISPLAY", server->display()}}})
                    .value()
                    .succeeded());
    ASSERT_TRUE(becomes([&] { return values("WM_STATE").at(0) == 3; }));
    system->skipTaskbar(window, false);
    EXPECT_TRUE(becomes([&] {
        const auto states = values("_NET_WM_STATE");
        return testing::Value(states, Not(Contains(skipped[0]))) &&
               testing::Value(states, Contains(atom("_NET_WM_STATE_HIDDEN")));
    }));
}

TEST_F(X11WindowSystems, AManagerOrACompositorThatWasKilledIsNoLongerThere) {
    const auto manager = startManager();
    manager->kill();
    EXPECT_TRUE(becomes([&] { return !system->hasWindowManager(); }));

    EXPECT_FALSE(system->isCompositing());
    xcb_set_selection_owner(connection, window, atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    synchronise();
    EXPECT_TRUE(system->isCompositing());
    xcb_destroy_window(connection, window);
    synchronise();
    EXPECT_FALSE(system->isCompositing());
    server->kill();
    EXPECT_FALSE(system->isCompositing());
    EXPECT_FALSE(system->hasWindowManager());
    system->keepOnAllWorkspaces(window);
    system->skipTaskbar(window, true);
}

}  // namespace
}  // namespace tonquil
