// SPDX-License-Identifier: MIT
#include "tests/support/TestCompositor.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <wayland-server-core.h>

#include <cstdlib>
#include <future>

namespace tonquil {

TestCompositor::TestCompositor() : _display(wl_display_create()), _wakeUp(eventfd(0, EFD_CLOEXEC)) {
    if (wl_display_add_socket(_display, socket().c_str()) != 0) {
        std::abort();
    }
}

void TestCompositor::start() {
    const auto wake = [](int descriptor, std::uint32_t, void* data) {
        std::uint64_t count = 0;
        if (read(descriptor, &count, sizeof count) == sizeof count) {
            static_cast<TestCompositor*>(data)->_work();
        }
        return 0;
    };
    _wakeUpSource = wl_event_loop_add_fd(wl_display_get_event_loop(_display), _wakeUp.get(),
                                         WL_EVENT_READABLE, wake, this);
    _thread = std::thread([this] { wl_display_run(_display); });
}

void TestCompositor::call(const std::function<void()>& work) {
    std::promise<void> done;
    _work = [&] {
        work();
        wl_display_flush_clients(_display);
        done.set_value();
    };
    const std::uint64_t one = 1;
    if (write(_wakeUp.get(), &one, sizeof one) == sizeof one) {
        done.get_future().wait();
    }
}

void TestCompositor::die() {
    if (_thread.joinable()) {
        call([this] { wl_display_terminate(_display); });
        _thread.join();
        wl_display_destroy_clients(_display);
        wl_event_source_remove(_wakeUpSource);
        wl_display_destroy(_display);
    }
}

}  // namespace tonquil
