// SPDX-License-Identifier: MIT
#include "platform/x11/displays/X11Reconfiguration.h"

#include <xcb/randr.h>

#include <utility>

namespace tonquil {

X11Reconfiguration::X11Reconfiguration(const X11Connection& connection, RunLoop& runLoop, Log log,
                                       std::function<void()> becameQuiet)
    : _connection(connection),
      _runLoop(runLoop),
      _log(std::move(log)),
      _becameQuiet(std::move(becameQuiet)) {
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
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(_connection.get())}) {
        take(*event);
    }
    if (_connection.isLost() && _watch) {
        if (_log) {
            _log("The X server has gone; the displays are no longer watched.");
        }
        _timer.reset();
        _watch.reset();
    }
}

void X11Reconfiguration::take(const xcb_generic_event_t& event) {
    // Bit 7 says that another client sent the event.
    const int type = (event.response_type & 0x7F) - _connection.randrFirstEvent();
    if (type == XCB_RANDR_SCREEN_CHANGE_NOTIFY || type == XCB_RANDR_NOTIFY) {
        waitForQuiet();
    }
}

void X11Reconfiguration::waitForQuiet() {
    _timer = _runLoop.callOnce(quietTime, [this] { _becameQuiet(); });
}

}  // namespace tonquil
