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

/// Something that a receiver does: a name to find it by, and the call.
struct HotKeyAction {
    using Call = std::function<void(const HotKeyEvent& event, const std::any& object)>;

    /// Empty for no action.
    std::string name{};
    /// Empty where the receiver does not respond to the action.
    Call call{};
};

/// Who is told of a hot key, and how.
struct HotKeyReceiver {
    /// The receiver's identity; null for none. Not owned: unregister before it goes.
    const void* target = nullptr;
    /// On release.
    HotKeyAction action{};
    /// On press.
    HotKeyAction pressedAction{};
    /// The second argument of the actions.
    std::any object{};
};

/// One key combination, a virtual key code and modifier flags, and what it invokes.
///
/// Two hot keys of one key code and one set of flags are equal, whatever they invoke. One that is
/// registered unregisters itself when it goes.
class DDHotKey {
 public:
    using Task = std::function<void(const HotKeyEvent& event)>;

    /// A new hot key that is not registered. The task may be empty.
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
    /// The name of the release action; empty when there is none.
    [[nodiscard]] const std::string& actionString() const { return _action.name; }

    /// The service's handle while this is registered.
    [[nodiscard]] std::optional<HotKeyHandle> hotKeyRef() const { return _hotKeyRef; }
    void setHotKeyRef(std::optional<HotKeyHandle> hotKeyRef) { _hotKeyRef = hotKeyRef; }
    /// The registry's number for this; 0 before the first registration.
    [[nodiscard]] std::uint32_t hotKeyID() const { return _hotKeyID; }
    void setHotKeyID(std::uint32_t hotKeyID) { _hotKeyID = hotKeyID; }

    /// Performs the release action where there is a target that responds to it, and otherwise the
    /// task, if any.
    void invokeWithEvent(const HotKeyEvent& event) const;
    /// Performs the pressed action where there is a target that responds to it. Never the task.
    void invokePressedWithEvent(const HotKeyEvent& event) const;

    [[nodiscard]] std::size_t hash() const;
    [[nodiscard]] bool isEqual(const DDHotKey& other) const;
    /// Several lines, for a log.
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
    /// Where this is registered. Whichever of the two goes first tells the other.
    DDHotKeyCenter* _center = nullptr;
};

}  // namespace tonquil
