// SPDX-License-Identifier: MIT
#include "platform/x11/desktop/X11WindowSystem.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

#include "platform/x11/desktop/X11DesktopEvents.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/RampReader.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;

/// Waits for another program's effect.
bool becomes(const std::function<bool()>& condition) {
    for (int count = 0; count < 400 && !condition(); ++count) {
        std::this_thread::sleep_for(50ms);
    }
    return condition();
}

TEST(X11WindowSystem, NoticesKilledWindowManagerOrCompositor) {
    const auto server = XServer::start().value();
    const RampReader desk = RampReader::connect(server->display()).value();
    xcb_connection_t* const connection = desk.connection();
    const auto system = X11WindowSystem::open(server->display().c_str()).value();
    const auto manager = BackgroundProcess::start({.command = {"openbox", "--sm-disable"},
                                                   .environment = {{"DISPLAY", server->display()}}})
                             .value();
    EXPECT_TRUE(becomes([&] { return system->hasWindowManager(); }));
    manager->kill();
    EXPECT_TRUE(becomes([&] { return !system->hasWindowManager(); }));

    ManualRunLoop loop;
    const auto events = X11DesktopEvents::open(server->display().c_str(), loop, {}).value();
    int changes = 0;
    events->setCompositingChanged([&] { ++changes; });
    events->start([](SessionEvent) {});
    const auto areTold = [&](int count) {
        return becomes([&, count] {
            loop.pollReadable(0ms);
            return changes == count;
        });
    };
    EXPECT_TRUE(areTold(1)) << "It may have changed before.";
    EXPECT_FALSE(system->isCompositing());
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, desk.root(), 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_atom_t compositor = desk.atom("_NET_WM_CM_S0");
    xcb_set_selection_owner(connection, window, compositor, XCB_CURRENT_TIME);
    xcb_flush(connection);
    EXPECT_TRUE(areTold(2));
    EXPECT_TRUE(system->isCompositing());
    xcb_destroy_window(connection, window);
    xcb_flush(connection);
    EXPECT_TRUE(areTold(3));
    EXPECT_FALSE(system->isCompositing());
    server->kill();
    EXPECT_FALSE(system->isCompositing());
    EXPECT_FALSE(system->hasWindowManager());
    system->keepOnAllWorkspaces(window);
    system->skipTaskbar(window, true);
}

}  // namespace
}  // namespace tonquil
