// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11HotKeyService.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "foundation/TranslatableText.h"
#include "hotkeys/VirtualKeys.h"
#include "platform/x11/keys/XcbXkb.h"

namespace tonquil {

namespace {

using std::chrono::milliseconds;

// The offset of X key codes.
constexpr std::uint8_t firstKeyCode = 8;

/// Control, Alt and one of F1 to F12: the server handles them itself, and no grab receives them.
bool isForTerminals(std::uint32_t evdevCode, HotKeyServiceMask modifiers) {
    const bool isFunctionKey = (evdevCode >= KEY_F1 && evdevCode <= KEY_F10) ||
                               evdevCode == KEY_F11 || evdevCode == KEY_F12;
    return isFunctionKey &&
           modifiers == (HotKeyServiceModifier::control | HotKeyServiceModifier::option);
}

bool isDown(const xcb_query_keymap_reply_t& keymap, xcb_keycode_t key) {
    constexpr unsigned bitsPerByte = 8;
    return ((keymap.keys[key / bitsPerByte] >> (key % bitsPerByte)) & 1U) != 0;
}

template <typename Event>
Event as(const xcb_generic_event_t& event) {
    Event result{};
    static_assert(sizeof result <= sizeof event);
    std::memcpy(&result, &event, sizeof result);
    return result;
}

}  // namespace

Result<std::unique_ptr<X11HotKeyService>> X11HotKeyService::open(const char* display,
                                                                 RunLoop& runLoop, Log log) {
    auto connection = X11Connection::open(display);
    if (!connection) {
        return tl::unexpected(connection.error());
    }
    std::unique_ptr<X11HotKeyService> service(
        new X11HotKeyService(std::move(*connection), runLoop, std::move(log)));
    if (auto failure = service->setUpKeyboard()) {
        return tl::unexpected(std::move(*failure));
    }
    return service;
}

X11HotKeyService::X11HotKeyService(std::unique_ptr<X11Connection> connection, RunLoop& runLoop,
                                   Log log)
    : _connection(std::move(connection)),
      _runLoop(runLoop),
      _log(std::move(log)),
      _grabs(*_connection) {}

std::optional<Problem> X11HotKeyService::setUpKeyboard() {
    const Problem noKeyboard{
        "The X server has no XKB extension, so there are no key combinations for all programs.",
        {}};
    auto* const connection = _connection->get();
    const auto* const extension = xcb_get_extension_data(connection, &xcb_xkb_id);
    if (extension == nullptr || extension->present == 0) {
        return noKeyboard;
    }
    _xkbEvent = extension->first_event;
    const XcbPointer<xcb_xkb_use_extension_reply_t> use(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    if (!use || use->supported == 0) {
        return noKeyboard;
    }
    selectEvents();
    _modifiers = X11Modifiers::read(*_connection);
    _watch = _runLoop.watchReadable(xcb_get_file_descriptor(connection), [this] { takeEvents(); });
    takeEventsSoon();
    return std::nullopt;
}

void X11HotKeyService::selectEvents() const {
    auto* const connection = _connection->get();
    // With it, auto-repeat of a held key sends only presses, and a single release at the end.
    constexpr std::uint32_t detectable = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const XcbPointer<xcb_xkb_per_client_flags_reply_t> flags(
        xcb_xkb_per_client_flags_reply(connection,
                                       xcb_xkb_per_client_flags(connection, XCB_XKB_ID_USE_CORE_KBD,
                                                                detectable, detectable, 0, 0, 0),
                                       nullptr));
    if (!flags || (flags->value & detectable) == 0) {
        report("The X server does not tell repeated keys apart; a held hot key may act often.");
    }
    constexpr std::uint16_t changes =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    constexpr std::uint16_t parts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    xcb_xkb_select_events(connection, XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes, parts, parts,
                          nullptr);
}

void X11HotKeyService::setHandlers(Handler pressed, Handler released) {
    _pressed = std::move(pressed);
    _released = std::move(released);
}

Result<HotKeyHandle> X11HotKeyService::registerHotKey(std::uint16_t keyCode,
                                                      HotKeyServiceMask modifiers, std::uint32_t id,
                                                      const std::string& /*action*/) {
    const auto evdevCode = evdevForVirtualKey(keyCode);
    if (!evdevCode) {
        return problem(
            TONQUIL_TEXT("Problem",
                         "This key cannot be part of a key combination for all programs."),
            "virtual key code " + std::to_string(keyCode));
    }
    if (isForTerminals(*evdevCode, modifiers)) {
        return problem(TONQUIL_TEXT(
            "Problem", "The X server keeps this key combination for switching terminals."));
    }
    const auto key = static_cast<xcb_keycode_t>(*evdevCode + firstKeyCode);
    const auto state = _modifiers.state(modifiers);
    if (!state) {
        return problem(
            TONQUIL_TEXT("Problem", "The keyboard has no such modifier key for a key combination."),
            "modifiers " + std::to_string(modifiers));
    }
    if (find(key, *state)) {
        return problem(
            TONQUIL_TEXT("Problem", "Tonquil itself already uses this key combination."));
    }
    const auto grabbed = _grabs.grab(key, *state, _modifiers.lockStates());
    takeEventsSoon();
    if (!grabbed) {
        return tl::unexpected(grabbed.error());
    }
    noteIfDown(key);
    _registrations[++_lastHandle] = {key, modifiers, id, state};
    return _lastHandle;
}

void X11HotKeyService::unregisterHotKey(HotKeyHandle handle) {
    const auto found = _registrations.find(handle);
    if (found == _registrations.end()) {
        return;
    }
    const Registration registration = found->second;
    _registrations.erase(found);
    std::erase_if(_held, [handle](const auto& each) { return each.second.handle == handle; });
    if (registration.state) {
        _grabs.ungrab(registration.key, *registration.state, _modifiers.lockStates());
    }
}

std::optional<HotKeyHandle> X11HotKeyService::find(xcb_keycode_t key, std::uint16_t state) const {
    const auto found = std::find_if(
        _registrations.begin(), _registrations.end(),
        [&](const auto& each) { return each.second.key == key && each.second.state == state; });
    return found != _registrations.end() ? std::optional(found->first) : std::nullopt;
}

// Events that arrived together with a reply are already in memory, so the file descriptor is not
// readable.
void X11HotKeyService::takeEventsSoon() {
    _early = _runLoop.callOnce(milliseconds(0), [this] { takeEvents(); });
}

void X11HotKeyService::takeEvents() {
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(_connection->get())}) {
        take(*event);
    }
    if (_connection->isLost() && _watch) {
        stop();
    }
}

void X11HotKeyService::take(const xcb_generic_event_t& event) {
    // Bit 7 marks an event sent by another client: nobody pressed that key.
    const int type = event.response_type;
    if (type == XCB_KEY_PRESS) {
        keyPressed(as<xcb_key_press_event_t>(event));
    } else if (type == XCB_KEY_RELEASE) {
        keyReleased(as<xcb_key_press_event_t>(event));
    } else if (type == XCB_MAPPING_NOTIFY || (type != 0 && type == _xkbEvent)) {
        _settling = _runLoop.callOnce(settlingTime, [this] { keyboardChanged(); });
    }
}

HotKeyServiceEvent X11HotKeyService::eventFrom(const xcb_key_press_event_t& event) {
    // The server counts milliseconds in 32 bits, which wrap around after seven weeks.
    const auto step = event.time - static_cast<std::uint32_t>(_serverTime.count());
    _serverTime += milliseconds(static_cast<std::int32_t>(step));
    _serverTimeTaken = _runLoop.now();
    return {0, static_cast<double>(event.root_x), static_cast<double>(event.root_y),
            _modifiers.flags(event.state), _serverTime};
}

void X11HotKeyService::keyPressed(const xcb_key_press_event_t& event) {
    HotKeyServiceEvent told = eventFrom(event);
    // While a hot key is down, the grab receives every key.
    const auto handle = find(event.detail, _modifiers.held(event.state));
    if (!handle || _held.contains(event.detail) || _downBefore.contains(event.detail)) {
        return;
    }
    _held[event.detail] = {*handle, ++_lastNumber};
    told.id = _registrations.at(*handle).id;
    // A copy, because the callback may set other handlers.
    if (const Handler handler = _pressed) {
        handler(told);
    }
}

void X11HotKeyService::keyReleased(const xcb_key_press_event_t& event) {
    const HotKeyServiceEvent told = eventFrom(event);
    _downBefore.erase(event.detail);
    release(event.detail, told);
    // The grab that started with the first of several keys ends with it, and so do the events.
    if (!_held.empty()) {
        lookUntilReleased();
    }
}

void X11HotKeyService::release(xcb_keycode_t key, HotKeyServiceEvent event) {
    const auto held = _held.find(key);
    if (held == _held.end()) {
        return;
    }
    event.id = _registrations.at(held->second.handle).id;
    _held.erase(held);
    if (const Handler handler = _released) {
        handler(event);
    }
}

// A key may be down while it is registered, for example because the user has just recorded it. That
// press is not a hot key, although its auto-repeat looks like one.
void X11HotKeyService::noteIfDown(xcb_keycode_t key) {
    const auto keymap = queryKeymap();
    if (keymap && isDown(*keymap, key)) {
        _downBefore.insert(key);
        lookUntilReleased();
    }
}

void X11HotKeyService::lookUntilReleased() {
    if (!_look) {
        _look = _runLoop.callRepeatedly(releaseInterval, [this] { lookForReleases(); });
    }
}

XcbPointer<xcb_query_keymap_reply_t> X11HotKeyService::queryKeymap() const {
    return XcbPointer<xcb_query_keymap_reply_t>(
        xcb_query_keymap_reply(_connection->get(), xcb_query_keymap(_connection->get()), nullptr));
}

void X11HotKeyService::lookForReleases() {
    const auto before = _held;
    const auto keymap = queryKeymap();
    const HotKeyServiceEvent present = presentEvent();
    takeEvents();
    for (const auto& [key, held] : before) {
        // If the key was released and pressed again since, this press is not the one that was asked
        // about.
        const auto now = _held.find(key);
        if (keymap && now != _held.end() && now->second.number == held.number &&
            !isDown(*keymap, key)) {
            release(key, present);
        }
    }
    if (keymap) {
        std::erase_if(_downBefore, [&](xcb_keycode_t key) { return !isDown(*keymap, key); });
    }
    if (_held.empty() && _downBefore.empty()) {
        _look.reset();
    }
}

HotKeyServiceEvent X11HotKeyService::presentEvent() const {
    HotKeyServiceEvent event;
    const XcbPointer<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
        _connection->get(), xcb_query_pointer(_connection->get(), _connection->root()), nullptr));
    if (pointer) {
        event.x = pointer->root_x;
        event.y = pointer->root_y;
        event.modifierFlags = _modifiers.flags(pointer->mask);
    }
    event.timestamp =
        _serverTime + std::chrono::duration_cast<milliseconds>(_runLoop.now() - _serverTimeTaken);
    return event;
}

void X11HotKeyService::keyboardChanged() {
    _settling.reset();
    const X11Modifiers former = std::exchange(_modifiers, X11Modifiers::read(*_connection));
    takeEventsSoon();
    const bool isWhole =
        std::all_of(_registrations.begin(), _registrations.end(),
                    [](const auto& each) { return each.second.state.has_value(); });
    if (_modifiers == former && isWhole) {
        return;
    }
    for (const auto& [handle, registration] : _registrations) {
        if (registration.state) {
            _grabs.ungrab(registration.key, *registration.state, former.lockStates());
        }
    }
    for (auto& [handle, registration] : _registrations) {
        registration.state = _modifiers.state(registration.modifiers);
        if (!registration.state) {
            report("A hot key's modifier is no longer on the keyboard.");
            continue;
        }
        const auto grabbed =
            _grabs.grab(registration.key, *registration.state, _modifiers.lockStates());
        if (!grabbed) {
            registration.state.reset();
            std::string line = "After a change of the keyboard a hot key is refused. ";
            report(line.append(grabbed.error().sentence));
        }
    }
}

void X11HotKeyService::stop() {
    _watch.reset();
    _early.reset();
    _look.reset();
    _settling.reset();
    _held.clear();
    _downBefore.clear();
    report("The X server has gone; hot keys are no longer heard.");
}

void X11HotKeyService::report(std::string_view line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
