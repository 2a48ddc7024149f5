// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "hotkeys/HotKeyService.h"
#include "platform/dbus/BusConnection.h"
#include "platform/portal/PortalRequests.h"

namespace tonquil {

/// Hot keys through the desktop's portal: the user gives actions their keys in the desktop's own
/// dialog, and the combinations registered here are only proposed there.
///
/// Registering always succeeds. The registrations of one turn of the event loop become one request
/// to the desktop, and none if the actions are still the same. Nothing waits for the bus or the
/// portal. Without a portal no key is ever reported. A request that fails is made once more after
/// `repeatInterval`, and so is one for keys that the desktop takes back; one that the user refuses
/// is not.
class PortalHotKeyService final : public HotKeyService {
 public:
    static constexpr std::chrono::milliseconds repeatInterval{10'000};

    /// What the desktop's dialog calls an action, by the action's name.
    using Descriptions = std::map<std::string, std::string>;

    struct Surroundings {
        RunLoop& runLoop;
        Descriptions descriptions;
        /// Called whenever the result of `isOffered` or `trigger` may have changed.
        std::function<void()> changed;
        Log log;
    };

    explicit PortalHotKeyService(Surroundings surroundings);

    /// Connects to the session bus; an empty address stands for none. Call once.
    void start(const std::string& address);

    /// Whether the desktop gives out keys; false until it is known.
    [[nodiscard]] bool isOffered() const { return _version > 0; }
    /// The keys of an action in the desktop's words; empty if it has none.
    [[nodiscard]] std::string trigger(const std::string& action) const;
    /// Asks the desktop to let the user choose the keys again.
    void changeKeys();

    [[nodiscard]] bool areKeysChosenByDesktop() const override { return true; }
    void setHandlers(Handler pressed, Handler released) override;
    [[nodiscard]] Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode,
                                                      HotKeyServiceMask modifiers, std::uint32_t id,
                                                      const std::string& action) override;
    void unregisterHotKey(HotKeyHandle handle) override;

 private:
    struct Registration {
        std::uint32_t id;
        std::string action;
        std::uint16_t keyCode;
        HotKeyServiceMask modifiers;
    };

    void watchPortal();
    void watchKeys();
    void findPortal();
    void portalLost();
    void bindSoon();
    void bind(bool mayRepeat);
    void createSession();
    void forgetSession();
    void closeSession(const std::string& session);
    void repeatLater();
    void refused(const std::string& line);
    void failed(const std::string& line, std::uint32_t round);
    void bindIn(const std::string& session);
    [[nodiscard]] BusNamedDictionaries shortcuts() const;
    void takeShortcuts(BusArguments& arguments);
    void keyChanged(BusArguments& arguments, bool isPressed);
    void report(const std::string& line) const;

    Surroundings _with;
    Handler _pressed;
    Handler _released;
    std::map<HotKeyHandle, Registration> _registrations;
    HotKeyHandle _lastHandle = 0;
    /// The portal's version of the interface; 0 if it has none.
    std::uint32_t _version = 0;
    /// The portal has gone; it may come back.
    bool _isLost = false;
    /// The actions that the desktop has been asked for.
    std::set<std::string> _asked;
    /// Counts these requests: an answer to an earlier one comes too late.
    std::uint32_t _round = 0;
    /// Empty while there is none.
    std::string _session;
    std::map<std::string, std::string> _triggers;
    /// The actions whose keys are down.
    std::set<std::string> _held;
    BusConnection _bus;
    PortalRequests _requests{_bus};
    std::unique_ptr<RunLoop::Handle> _turn;
    /// Whether the desktop may be asked for the same actions once more.
    bool _mayRepeat = true;
    std::unique_ptr<RunLoop::Handle> _repeat;
};

}  // namespace tonquil
