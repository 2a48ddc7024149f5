// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandConnection.h"

#include <poll.h>
#include <wayland-client-protocol.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include "foundation/TranslatableText.h"

namespace tonquil {

Result<std::unique_ptr<WaylandConnection>> WaylandConnection::open(const char* name) {
    const char* given = name != nullptr ? name : std::getenv("WAYLAND_DISPLAY");
    if (given == nullptr || *given == '\0') {
        return problem(TONQUIL_TEXT(
            "Problem", "There is no Wayland compositor to talk to: WAYLAND_DISPLAY is not set."));
    }
    wl_display* const display = wl_display_connect(given);
    if (display == nullptr) {
        return problem("Cannot connect to the Wayland compositor " + std::string(given) + ".",
                       std::generic_category().message(errno));
    }
    return std::unique_ptr<WaylandConnection>(new WaylandConnection(display));
}

void WaylandConnection::takeEvents() {
    takeEventsWithin(0);
}

void WaylandConnection::takeEventsWithin(int milliseconds) const {
    if (wl_display_prepare_read(get()) != 0) {
        // Some have been read already.
        wl_display_dispatch_pending(get());
        return;
    }
    flush();
    pollfd readable{descriptor(), POLLIN, 0};
    if (poll(&readable, 1, milliseconds) > 0) {
        wl_display_read_events(get());
    } else {
        wl_display_cancel_read(get());
    }
    wl_display_dispatch_pending(get());
}

bool WaylandConnection::waitUntil(const std::function<bool()>& isDone,
                                  std::chrono::milliseconds limit) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + limit;
    while (!isDone()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        if (left <= 0 || isLost()) {
            return false;
        }
        takeEventsWithin(static_cast<int>(left));
    }
    return true;
}

bool WaylandConnection::waitForAnswers(std::chrono::milliseconds limit) {
    bool isAnswered = false;
    const std::unique_ptr<wl_callback, DestroyWaylandProxy> last(wl_display_sync(get()));
    static constexpr wl_callback_listener listener{
        .done = [](void* data, wl_callback*, std::uint32_t) { *static_cast<bool*>(data) = true; }};
    wl_callback_add_listener(last.get(), &listener, &isAnswered);
    return waitUntil([&] { return isAnswered; }, limit);
}

bool WaylandConnection::offers(std::string_view interface, std::chrono::milliseconds limit) {
    struct Search {
        std::string_view wanted;
        bool isFound = false;
    } search{.wanted = interface};
    const std::unique_ptr<wl_registry, DestroyWaylandProxy> registry(
        wl_display_get_registry(get()));
    static constexpr wl_registry_listener listener{
        .global =
            [](void* data, wl_registry*, std::uint32_t, const char* announced, std::uint32_t) {
                auto& found = *static_cast<Search*>(data);
                found.isFound = found.isFound || found.wanted == announced;
            },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry_add_listener(registry.get(), &listener, &search);
    return waitForAnswers(limit) && search.isFound;
}

void WaylandConnection::flush() const {
    constexpr int longestWaitMilliseconds = 100;
    while (wl_display_flush(get()) < 0 && errno == EAGAIN) {
        pollfd writable{descriptor(), POLLOUT, 0};
        if (poll(&writable, 1, longestWaitMilliseconds) <= 0) {
            return;
        }
    }
}

}  // namespace tonquil
