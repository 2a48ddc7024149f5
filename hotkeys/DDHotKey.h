// SPDX-License-Identifier: MIT
#pragma once

#include <any>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "hotkeys/HotKeyEvent.h"
#include "hotkeys/HotKeyService.h"

namespace tonquil {

class DDHotKeyCenter;

/// A named callback of a receiver.
struct HotKeyAction {
    using Call = std::function<void(const HotKeyEvent& event, const std::any& object)>;

    /// Empty for no action.
    std::string name{};
    /// Empty if the receiver does not implement the action.
    Call call{};
};

/// Who handles a hot key, and how.
struct HotKeyReceiver {
    /// Identity of the receiver; null for none. Not owned: unregister before destroying it.
    const void* target = nullptr;
    /// Called on release.
    HotKeyAction action{};
    /// Called on press.
    HotKeyAction pressedAction{};
    /// Passed as second argument to the actions.
    std::any object{};
};

/// A key combination (virtual key code and modifier flags) and what it invokes.
///
/// Hot keys with the same key code and flags are equal, whatever they invoke. The destructor
/// unregisters a registered hot key.
class DDHotKey {
 public:
    using Task = std::function<void(const HotKeyEvent& event)>;

    /// Creates an unregistered hot key. The task may be empty.
    [[nodiscard]] static std::shared_ptr<DDHotKey> hotKeyWithKeyCode(std::uint16_t keyCode,
                                                                     ModifierFlags modifierFlags,
                                                                     Task task);
    ~DDHotKey();
    DDHotKey(const DDHotKey&) = delete;
    DDHotKey& operator=(const DDHotKey&) = delete;

    [[nodiscard]] const void* target() const { return _target; }
    [[nodiscard]] const HotKeyAction& action() const { return _action; }
    [[nodiscard]] const HotKeyAction& pressedAction() const { return _pressedAction; }
    [[nodiscard]] const std::any& object() const { return _object; }
    [[nodiscard]] std::uint16_t keyCode() const { return _keyCode; }
    [[nodiscard]] ModifierFlags modifierFlags() const { return _modifierFlags; }
    [[nodiscard]] const Task& task() const { return _task; }
    /// The name of the release action; empty if there is none.
    [[nodiscard]] const std::string& actionString() const { return _action.name; }

    /// The service's handle while registered.
    [[nodiscard]] std::optional<HotKeyHandle> hotKeyRef() const { return _hotKeyRef; }
    void setHotKeyRef(std::optional<HotKeyHandle> hotKeyRef) { _hotKeyRef = hotKeyRef; }
    /// The ID assigned by the registry; 0 before the first registration.
    [[nodiscard]] std::uint32_t hotKeyID() const { return _hotKeyID; }
    void setHotKeyID(std::uint32_t hotKeyID) { _hotKeyID = hotKeyID; }

    /// Calls the release action if there is a target that implements it, otherwise the task, if
    /// any.
    void invokeWithEvent(const HotKeyEvent& event) const;
    /// Calls the pressed action if there is a target that implements it; never the task.
    void invokePressedWithEvent(const HotKeyEvent& event) const;

    [[nodiscard]] std::size_t hash() const;
    [[nodiscard]] bool isEqual(const DDHotKey& other) const;
    /// Several lines, for the log.
    [[nodiscard]] std::string description() const;

 private:
    friend class DDHotKeyCenter;

    DDHotKey() = default;
    void _setTarget(const void* target);
    void _setAction(HotKeyAction action);
    void _setPressedAction(HotKeyAction pressedAction);
    void _setObject(std::any object);
    void _setKeyCode(std::uint16_t keyCode);
    void _setModifierFlags(ModifierFlags modifierFlags);
    void _setTask(Task task);

    const void* _target = nullptr;
    HotKeyAction _action;
    HotKeyAction _pressedAction;
    std::any _object;
    std::uint16_t _keyCode = 0;
    ModifierFlags _modifierFlags = 0;
    Task _task;
    std::optional<HotKeyHandle> _hotKeyRef;
    std::uint32_t _hotKeyID = 0;
    /// The registry that holds this hot key. Whichever is destroyed first clears the other's
    /// pointer.
    DDHotKeyCenter* _center = nullptr;
};

}  // namespace tonquil
