// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

#include "foundation/Log.h"
#include "hotkeys/DDHotKey.h"
#include "hotkeys/HotKeyService.h"

namespace tonquil {

struct DDHotKeyHash {
    std::size_t operator()(const std::shared_ptr<DDHotKey>& hotKey) const { return hotKey->hash(); }
};

struct DDHotKeyEqual {
    bool operator()(const std::shared_ptr<DDHotKey>& left,
                    const std::shared_ptr<DDHotKey>& right) const {
        return left->isEqual(*right);
    }
};

/// Hot keys, no two of them equal.
using DDHotKeySet = std::unordered_set<std::shared_ptr<DDHotKey>, DDHotKeyHash, DDHotKeyEqual>;

/// The program's registry of hot keys: registers combinations with a service and dispatches the
/// service's events. The pressed action runs when the keys go down, the main action when they are
/// released.
///
/// Created once when the program is composed, then shared. Main thread only.
class DDHotKeyCenter {
 public:
    using Predicate = std::function<bool(const DDHotKey&)>;

    /// Installs itself as the service's event handler. The service must outlive this.
    explicit DDHotKeyCenter(HotKeyService& service, Log log = {});
    /// Releases all combinations; if shared, `sharedHotKeyCenter` becomes null.
    ~DDHotKeyCenter();
    DDHotKeyCenter(const DDHotKeyCenter&) = delete;
    DDHotKeyCenter& operator=(const DDHotKeyCenter&) = delete;

    /// The shared center; null if there is none.
    [[nodiscard]] static DDHotKeyCenter* sharedHotKeyCenter();
    /// Replaces the shared center, which is not owned; null for none.
    static void setSharedHotKeyCenter(DDHotKeyCenter* center);

    /// Registers a new hot key with a task. False, with nothing registered, if this combination is
    /// already registered here or the service refuses it: see `lastRefusal`.
    [[nodiscard]] bool registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                                 DDHotKey::Task task);
    /// The same with a target and its actions.
    [[nodiscard]] bool registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                                 HotKeyReceiver receiver);
    /// Whether the user gives actions their keys in the desktop; see `HotKeyService`.
    [[nodiscard]] bool areKeysChosenByDesktop() const { return _service.areKeysChosenByDesktop(); }
    /// Why the last registration failed, as a sentence for the user; nothing if it succeeded.
    [[nodiscard]] const std::optional<Problem>& lastRefusal() const { return _lastRefusal; }

    /// Compares all flags, even those that the service ignores.
    [[nodiscard]] bool hasRegisteredHotKeyWithKeyCode(std::uint16_t keyCode,
                                                      ModifierFlags modifierFlags) const;
    [[nodiscard]] DDHotKeySet hotKeysMatchingPredicate(const Predicate& predicate) const;
    /// Those with a service handle.
    [[nodiscard]] DDHotKeySet registeredHotKeys() const;

    /// Releases the combination and drops the hot key. Ignores one without a handle.
    void unregisterHotKey(DDHotKey& hotKey);
    void unregisterHotKeysMatchingPredicate(const Predicate& predicate);
    void unregisterHotKeysWithTarget(const void* target);
    /// Those of a target whose release action has this name.
    void unregisterHotKeysWithTarget(const void* target, const std::string& action);
    void unregisterHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags);
    void unregisterAllHotKeys();

 private:
    [[nodiscard]] bool _registerHotKey(const std::shared_ptr<DDHotKey>& hotKey);
    [[nodiscard]] bool refuseDuplicate(std::uint16_t keyCode, ModifierFlags modifierFlags);
    [[nodiscard]] std::shared_ptr<DDHotKey> hotKeyWithID(std::uint32_t hotKeyID) const;
    using Invocation = void (DDHotKey::*)(const HotKeyEvent&) const;
    void handle(const HotKeyServiceEvent& event, Invocation invocation) const;

    HotKeyService& _service;
    Log _log;
    DDHotKeySet _registeredHotKeys;
    std::uint32_t _nextHotKeyID = 1;
    std::optional<Problem> _lastRefusal;
};

}  // namespace tonquil
