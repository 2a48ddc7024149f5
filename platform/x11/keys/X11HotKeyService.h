// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "hotkeys/HotKeyService.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/keys/X11KeyGrabs.h"
#include "platform/x11/keys/X11Modifiers.h"

namespace tonquil {

/// Hot keys of an X server: passive key grabs on its root windows, on a connection of its own.
///
/// The lock keys do not affect a combination, nor does the selected layout. When the keyboard is
/// reconfigured, the combinations are grabbed again; a refused one is logged and tried again at the
/// next such change. Once the connection is lost, no keys are received and registering fails. On a
/// Wayland session's X server combinations only work while one of its own windows is in front.
class X11HotKeyService final : public HotKeyService {
 public:
    /// How often the keyboard is polled when no event reports a key's release.
    static constexpr std::chrono::milliseconds releaseInterval{30};
    /// Several changes of the keyboard configuration within this time are handled as one.
    static constexpr std::chrono::milliseconds settlingTime{50};

    /// Connects to `display` like X11Connection::open. Also fails if the server has no XKB
    /// extension. The run loop must outlive this.
    [[nodiscard]] static Result<std::unique_ptr<X11HotKeyService>> open(const char* display,
                                                                        RunLoop& runLoop, Log log);

    void setHandlers(Handler pressed, Handler released) override;
    [[nodiscard]] Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode,
                                                      HotKeyServiceMask modifiers, std::uint32_t id,
                                                      const std::string& action) override;
    void unregisterHotKey(HotKeyHandle handle) override;

 private:
    struct Registration {
        xcb_keycode_t key;
        HotKeyServiceMask modifiers;
        std::uint32_t id;
        /// The grabbed modifier state; nothing while the keyboard cannot produce it.
        std::optional<std::uint16_t> state;
    };
    /// A hot key that is down.
    struct Held {
        HotKeyHandle handle;
        /// Distinguishes one press of the key from the next.
        std::uint64_t number;
    };

    X11HotKeyService(std::unique_ptr<X11Connection> connection, RunLoop& runLoop, Log log);
    [[nodiscard]] std::optional<Problem> setUpKeyboard();
    void selectEvents() const;
    [[nodiscard]] std::optional<HotKeyHandle> find(xcb_keycode_t key, std::uint16_t state) const;
    void takeEvents();
    void takeEventsSoon();
    void take(const xcb_generic_event_t& event);
    [[nodiscard]] HotKeyServiceEvent eventFrom(const xcb_key_press_event_t& event);
    void keyPressed(const xcb_key_press_event_t& event);
    void keyReleased(const xcb_key_press_event_t& event);
    void release(xcb_keycode_t key, HotKeyServiceEvent event);
    void noteIfDown(xcb_keycode_t key);
    void lookUntilReleased();
    void lookForReleases();
    [[nodiscard]] XcbPointer<xcb_query_keymap_reply_t> queryKeymap() const;
    [[nodiscard]] HotKeyServiceEvent presentEvent() const;
    void keyboardChanged();
    void stop();
    void report(std::string_view line) const;

    std::unique_ptr<X11Connection> _connection;
    RunLoop& _runLoop;
    Log _log;
    X11KeyGrabs _grabs;
    X11Modifiers _modifiers;
    std::uint8_t _xkbEvent = 0;
    Handler _pressed;
    Handler _released;
    std::map<HotKeyHandle, Registration> _registrations;
    HotKeyHandle _lastHandle = 0;
    std::map<xcb_keycode_t, Held> _held;
    std::uint64_t _lastNumber = 0;
    /// Keys that have been down since before they were registered.
    std::set<xcb_keycode_t> _downBefore;
    /// The server's time in the last key event, extended beyond its 32 bits, and our time when it
    /// arrived.
    std::chrono::milliseconds _serverTime{0};
    RunLoop::Clock::time_point _serverTimeTaken;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _early;
    std::unique_ptr<RunLoop::Handle> _look;
    std::unique_ptr<RunLoop::Handle> _settling;
};

}  // namespace tonquil
