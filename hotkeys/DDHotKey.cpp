// SPDX-License-Identifier: MIT
#include "hotkeys/DDHotKey.h"

#include <array>
#include <locale>
#include <sstream>
#include <string_view>
#include <utility>

#include "hotkeys/DDHotKeyCenter.h"

namespace tonquil {

namespace {

struct FlagName {
    ModifierFlags flag;
    std::string_view name;
};

constexpr std::array<FlagName, 4> flagNames{{
    {ModifierFlag::control, "NSControlKeyMask"},
    {ModifierFlag::command, "NSCommandKeyMask"},
    {ModifierFlag::shift, "NSShiftKeyMask"},
    {ModifierFlag::option, "NSAlternateKeyMask"},
}};

std::string flagsText(ModifierFlags flags) {
    std::string text = "(";
    for (const auto& [flag, name] : flagNames) {
        if ((flags & flag) != 0) {
            text.append(text.size() > 1 ? " | " : "").append(name);
        }
    }
    return text.append(")");
}

bool isPerformed(const void* target, const HotKeyAction& action) {
    return target != nullptr && !action.name.empty() && action.call;
}

}  // namespace

std::shared_ptr<DDHotKey> DDHotKey::hotKeyWithKeyCode(std::uint16_t keyCode,
                                                      ModifierFlags modifierFlags, Task task) {
    std::shared_ptr<DDHotKey> hotKey(new DDHotKey);
    hotKey->_setKeyCode(keyCode);
    hotKey->_setModifierFlags(modifierFlags);
    hotKey->_setTask(std::move(task));
    return hotKey;
}

DDHotKey::~DDHotKey() {
    if (_center != nullptr) {
        _center->unregisterHotKey(*this);
    }
}

void DDHotKey::invokeWithEvent(const HotKeyEvent& event) const {
    if (isPerformed(_target, _action)) {
        _action.call(event, _object);
    } else if (_task) {
        _task(event);
    }
}

void DDHotKey::invokePressedWithEvent(const HotKeyEvent& event) const {
    if (isPerformed(_target, _pressedAction)) {
        _pressedAction.call(event, _object);
    }
}

std::size_t DDHotKey::hash() const {
    return static_cast<std::size_t>(_keyCode ^ _modifierFlags);
}

bool DDHotKey::isEqual(const DDHotKey& other) const {
    return _keyCode == other._keyCode && _modifierFlags == other._modifierFlags;
}

std::string DDHotKey::description() const {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "<DDHotKey: " << static_cast<const void*>(this) << ">\n\t(key: " << _keyCode
         << "\n\tflags: " << flagsText(_modifierFlags) << "\n\tinvokes: ";
    if (_target != nullptr && !_action.name.empty()) {
        text << '[' << _target << ' ' << _action.name << ']';
    } else {
        text << "(block)";
    }
    text << ')';
    return text.str();
}

void DDHotKey::_setTarget(const void* target) {
    _target = target;
}

void DDHotKey::_setAction(HotKeyAction action) {
    _action = std::move(action);
}

void DDHotKey::_setPressedAction(HotKeyAction pressedAction) {
    _pressedAction = std::move(pressedAction);
}

void DDHotKey::_setObject(std::any object) {
    _object = std::move(object);
}

void DDHotKey::_setKeyCode(std::uint16_t keyCode) {
    _keyCode = keyCode;
}

void DDHotKey::_setModifierFlags(ModifierFlags modifierFlags) {
    _modifierFlags = modifierFlags;
}

void DDHotKey::_setTask(Task task) {
    _task = std::move(task);
}

}  // namespace tonquil
