// SPDX-License-Identifier: MIT
#include "platform/qt/ScreenEventLimit.h"

#include <xcb/randr.h>

#include <QGuiApplication>
#include <algorithm>
#include <cstring>

namespace tonquil {

namespace {

/// A flag in the first byte of an event.
constexpr unsigned sentByClient = 0x80;

/// A later event of the same kind about the same thing supersedes the earlier ones.
std::pair<int, std::uint32_t> kindOf(const xcb_generic_event_t& event, bool isNotify) {
    if (!isNotify) {
        return {-1, 0};
    }
    xcb_randr_notify_event_t notify{};
    std::memcpy(&notify, &event, sizeof notify);
    switch (notify.subCode) {
        case XCB_RANDR_NOTIFY_CRTC_CHANGE:
            return {notify.subCode, notify.u.cc.crtc};
        case XCB_RANDR_NOTIFY_OUTPUT_CHANGE:
            return {notify.subCode, notify.u.oc.output};
        case XCB_RANDR_NOTIFY_OUTPUT_PROPERTY:
            return {notify.subCode, notify.u.op.output};
        default:
            return {notify.subCode, 0};
    }
}

}  // namespace

ScreenEventLimit::ScreenEventLimit(RunLoop& runLoop) : _runLoop(runLoop) {
    auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without windows at all, the toolkit offers the interface but no server.
    if (x11 == nullptr || x11->connection() == nullptr) {
        return;
    }
    _connection = x11->connection();
    const auto* randr = xcb_get_extension_data(_connection, &xcb_randr_id);
    if (randr == nullptr || randr->present == 0) {
        return;
    }
    _randrFirstEvent = randr->first_event;
    _window = xcb_generate_id(_connection);
    xcb_create_window(_connection, 0, _window,
                      xcb_setup_roots_iterator(xcb_get_setup(_connection)).data->root, -1, -1, 1, 1,
                      0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    QCoreApplication::instance()->installNativeEventFilter(this);
}

ScreenEventLimit::~ScreenEventLimit() {
    if (_window != 0) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
        xcb_destroy_window(_connection, _window);
    }
}

bool ScreenEventLimit::nativeEventFilter(const QByteArray& /*eventType*/, void* message,
                                         qintptr* /*result*/) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    const int type = event.response_type - _randrFirstEvent;
    // Events that this object forwards are flagged as sent by a client, and pass.
    if (type != XCB_RANDR_SCREEN_CHANGE_NOTIFY && type != XCB_RANDR_NOTIFY) {
        return false;
    }
    auto& held = _held[kindOf(event, type == XCB_RANDR_NOTIFY)];
    std::memcpy(held.data(), &event, held.size());
    held[0] = static_cast<char>(event.response_type | sentByClient);
    if (!_timer) {
        const bool isStorm = _runLoop.now() - _handedOn < _wait;
        _wait = isStorm ? std::min(2 * _wait, longestWait) : shortestWait;
        _timer = _runLoop.callOnce(_wait, [this] { handOn(); });
    }
    return true;
}

void ScreenEventLimit::handOn() {
    _timer.reset();
    _handedOn = _runLoop.now();
    for (const auto& [kind, event] : std::exchange(_held, {})) {
        xcb_send_event(_connection, 0, _window, XCB_EVENT_MASK_NO_EVENT, event.data());
    }
    xcb_flush(_connection);
}

}  // namespace tonquil
