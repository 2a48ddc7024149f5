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

/// Hot keys of which no two are equal.
using DDHotKeySet = std::unordered_set<std::shared_ptr<DDHotKey>, DDHotKeyHash, DDHotKeyEqual>;

/// The program's registry of hot keys: registers combinations with a service, and invokes the hot
/// key that an event of the service is for. The pressed action is performed when the keys go down,
/// the main action when they are released.
///
/// Whoever composes a program makes one and shares it; there is one at a time. Main thread only.
class DDHotKeyCenter {
 public:
    using Predicate = std::function<bool(const DDHotKey&)>;

    /// Takes the service's events for itself. The service must outlive this.
    explicit DDHotKeyCenter(HotKeyService& service, Log log = {});
    /// Gives all combinations up; is no longer shared.
    ~DDHotKeyCenter();
    DDHotKeyCenter(const DDHotKeyCenter&) = delete;
    DDHotKeyCenter& operator=(const DDHotKeyCenter&) = delete;

    /// The center that the program shares; null when there is none.
    [[nodiscard]] static DDHotKeyCenter* sharedHotKeyCenter();
    /// Shares a center, which is not owned, in place of another; null for none.
    static void setSharedHotKeyCenter(DDHotKeyCenter* center);

    /// Registers a new hot key with a task. False, with nothing registered, when this combination
    /// is registered here already or the service refuses it: see `lastRefusal`.
    [[nodiscard]] bool registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                                 DDHotKey::Task task);
    /// The same with a target and its actions.
    [[nodiscard]] bool registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                                 HotKeyReceiver receiver);
    /// Why the last registration failed, in a sentence for people; nothing when it succeeded.
    [[nodiscard]] const std::optional<Problem>& lastRefusal() const { return _lastRefusal; }

    /// Compares all the flags, also those that make no difference to the service.
    [[nodiscard]] bool hasRegisteredHotKeyWithKeyCode(std::uint16_t keyCode,
                                                      ModifierFlags modifierFlags) const;
    [[nodiscard]] DDHotKeySet hotKeysMatchingPredicate(const Predicate& predicate) const;
    /// Those that have a handle of the service.
    [[nodiscard]] DDHotKeySet registeredHotKeys() const;

    /// Gives the combination up and forgets the hot key. One without a handle is left alone.
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
