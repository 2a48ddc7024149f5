// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11Reconfiguration.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tonquil {

X11Reconfiguration::X11Reconfiguration(const X11Connection& connection, RunLoop& runLoop, Log log,
                                       std::function<void(const CrtcStates&)> becameQuiet,
                                       std::function<void()> lost)
    : _connection(connection),
      _runLoop(runLoop),
      _log(std::move(log)),
      _becameQuiet(std::move(becameQuiet)),
      _lost(std::move(lost)) {
    xcb_randr_select_input(_connection.get(), _connection.root(),
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                               XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE |
                               XCB_RANDR_NOTIFY_MASK_OUTPUT_PROPERTY);
    xcb_flush(_connection.get());
    _watch = _runLoop.watchReadable(xcb_get_file_descriptor(_connection.get()),
                                    [this] { takeEvents(); });
}

void X11Reconfiguration::takeQueuedEvents() {
    while (
        const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_queued_event(_connection.get())}) {
        take(*event);
    }
}

void X11Reconfiguration::takeEvents() {
    // One read from the socket, not everything in a storm: other sources need the run loop too.
    if (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(_connection.get())}) {
        take(*event);
    }
    takeQueuedEvents();
    if (_connection.isLost() && _watch) {
        _lost();
        if (_log) {
            _log("The X server has gone; the displays are no longer watched.");
        }
        _timer.reset();
        _watch.reset();
    }
}

void X11Reconfiguration::take(const xcb_generic_event_t& event) {
    // Bit 7 means that another client sent the event.
    const int type = (event.response_type & 0x7F) - _connection.randrFirstEvent();
    if (type == XCB_RANDR_NOTIFY) {
        xcb_randr_notify_event_t change{};
        std::memcpy(&change, &event, sizeof change);
        if (change.subCode == XCB_RANDR_NOTIFY_CRTC_CHANGE) {
            const xcb_randr_crtc_change_t& crtc = change.u.cc;
            _passed.insert({.crtc = crtc.crtc,
                            .x = crtc.x,
                            .y = crtc.y,
                            .width = crtc.mode == XCB_NONE ? std::uint16_t{0} : crtc.width,
                            .height = crtc.mode == XCB_NONE ? std::uint16_t{0} : crtc.height});
        }
        waitForQuiet();
    } else if (type == XCB_RANDR_SCREEN_CHANGE_NOTIFY) {
        waitForQuiet();
    }
}

void X11Reconfiguration::waitForQuiet() {
    _lastEvent = _runLoop.now();
    if (!_timer) {
        _firstEvent = _lastEvent;
        _timer = _runLoop.callOnce(quietTime, [this] { callWhenDue(); });
    }
}

// Not a new timer per event: there may be thousands.
void X11Reconfiguration::callWhenDue() {
    using std::chrono::milliseconds;
    const auto due = std::min(_lastEvent + quietTime, _firstEvent + longestWait);
    const auto left = std::chrono::ceil<milliseconds>(due - _runLoop.now());
    if (left > milliseconds(0)) {
        _timer = _runLoop.callOnce(left, [this] { callWhenDue(); });
        return;
    }
    _timer.reset();
    _becameQuiet(std::exchange(_passed, {}));
}

}  // namespace tonquil
