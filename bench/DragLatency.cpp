// SPDX-License-Identifier: MIT
// Drags a slider with real pointer events and watches a display's ramp from outside.
//
//   drag_latency X Y WIDTH [EVENTS_PER_SECOND SECONDS]
//
// Presses at (X, Y) and moves within WIDTH pixels. Prints how long the server's ramp takes to
// change after single moves, and after the last move of a long drag, when all queued work is due.
#include <xcb/randr.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double microsecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

class Hand {
 public:
    Hand() : _connection(xcb_connect(nullptr, nullptr)) {
        const xcb_setup_t* setup = xcb_get_setup(_connection);
        _root = xcb_setup_roots_iterator(setup).data->root;
        auto* resources = xcb_randr_get_screen_resources_current_reply(
            _connection, xcb_randr_get_screen_resources_current(_connection, _root), nullptr);
        _crtc = *xcb_randr_get_screen_resources_current_crtcs(resources);
        std::free(resources);
    }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;
    ~Hand() { xcb_disconnect(_connection); }

    void fake(std::uint8_t type, std::uint8_t detail, int x, int y) {
        xcb_test_fake_input(_connection, type, detail, XCB_CURRENT_TIME, _root,
                            static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
        xcb_flush(_connection);
    }
    void moveTo(int x, int y) { fake(XCB_MOTION_NOTIFY, 0, x, y); }

    /// The middle entry of the red ramp of the first display.
    [[nodiscard]] int entry() const {
        auto* reply = xcb_randr_get_crtc_gamma_reply(
            _connection, xcb_randr_get_crtc_gamma(_connection, _crtc), nullptr);
        const int entry = xcb_randr_get_crtc_gamma_red(reply)[reply->size / 2];
        std::free(reply);
        return entry;
    }
    /// Microseconds until the entry changes; 0 if it does not within a second.
    [[nodiscard]] double untilChanged(int from, Clock::time_point start) const {
        constexpr double second = 1e6;
        while (entry() == from) {
            if (microsecondsSince(start) > second) {
                return 0;
            }
        }
        return microsecondsSince(start);
    }

 private:
    xcb_connection_t* _connection;
    xcb_window_t _root = 0;
    xcb_randr_crtc_t _crtc = 0;
};

double percentile(const std::vector<double>& sorted, double fraction) {
    return sorted.at(static_cast<std::size_t>(fraction * static_cast<double>(sorted.size() - 1)));
}

void measureSingleMoves(Hand& hand, int x, int y, int width) {
    constexpr int moves = 500;
    std::vector<double> latencies;
    for (int count = 0; count < moves; ++count) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        const int before = hand.entry();
        const auto start = Clock::now();
        hand.moveTo(x + (count % 2 == 0 ? width : 0) + count % 5, y);
        latencies.push_back(hand.untilChanged(before, start));
    }
    std::sort(latencies.begin(), latencies.end());
    std::printf("single moves: median %.0f us, 90 %% %.0f us, longest %.0f us\n",
                percentile(latencies, 0.5), percentile(latencies, 0.9), latencies.back());
}

void measureDrag(Hand& hand, int x, int y, int width, int rate, int seconds) {
    const int events = rate * seconds;
    const auto start = Clock::now();
    for (int count = 0; count < events; ++count) {
        hand.moveTo(x + count % width, y);
        std::this_thread::sleep_until(start +
                                      std::chrono::microseconds(1'000'000LL * (count + 1) / rate));
    }
    const int before = hand.entry();
    const auto last = Clock::now();
    hand.moveTo(x + width * 2, y);
    const double first = hand.untilChanged(before, last);
    // Anything still queued would change the ramp again.
    double settled = first;
    for (int present = hand.entry(); microsecondsSince(last) < 500'000;) {
        if (const int now = hand.entry(); now != present) {
            present = now;
            settled = microsecondsSince(last);
        }
    }
    std::printf("after %d events in %d s: the ramp follows the last one within %.0f us\n", events,
                seconds, settled);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: drag_latency X Y WIDTH [EVENTS_PER_SECOND SECONDS]\n", stderr);
        return 2;
    }
    const int x = std::atoi(argv[1]);
    const int y = std::atoi(argv[2]);
    const int width = std::atoi(argv[3]);
    Hand hand;
    hand.moveTo(x, y);
    hand.fake(XCB_BUTTON_PRESS, 1, 0, 0);
    if (argc >= 6) {
        measureDrag(hand, x, y, width, std::atoi(argv[4]), std::atoi(argv[5]));
    } else {
        measureSingleMoves(hand, x, y, width);
    }
    hand.fake(XCB_BUTTON_RELEASE, 1, 0, 0);
}
