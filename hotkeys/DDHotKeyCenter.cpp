// SPDX-License-Identifier: MIT
#include "hotkeys/DDHotKeyCenter.h"

#include <algorithm>
#include <utility>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

DDHotKeyCenter*& sharedCenter() {
    static DDHotKeyCenter* center = nullptr;
    return center;
}

DDHotKeyCenter::Predicate hasCombination(std::uint16_t keyCode, ModifierFlags modifierFlags) {
    return [keyCode, modifierFlags](const DDHotKey& hotKey) {
        return hotKey.keyCode() == keyCode && hotKey.modifierFlags() == modifierFlags;
    };
}

HotKeyEvent eventFor(const HotKeyServiceEvent& event, const DDHotKey& hotKey) {
    HotKeyEvent result;
    result.x = event.x;
    result.y = event.y;
    result.modifierFlags = event.modifierFlags;
    result.timestamp = event.timestamp;
    result.keyCode = hotKey.keyCode();
    return result;
}

}  // namespace

DDHotKeyCenter* DDHotKeyCenter::sharedHotKeyCenter() {
    return sharedCenter();
}

void DDHotKeyCenter::setSharedHotKeyCenter(DDHotKeyCenter* center) {
    sharedCenter() = center;
}

DDHotKeyCenter::DDHotKeyCenter(HotKeyService& service, Log log)
    : _service(service), _log(std::move(log)) {
    _service.setHandlers(
        [this](const HotKeyServiceEvent& event) {
            handle(event, &DDHotKey::invokePressedWithEvent);
        },
        [this](const HotKeyServiceEvent& event) { handle(event, &DDHotKey::invokeWithEvent); });
}

DDHotKeyCenter::~DDHotKeyCenter() {
    _service.setHandlers({}, {});
    unregisterAllHotKeys();
    // This list also has hot keys whose handle was taken away.
    for (const auto& hotKey : _registeredHotKeys) {
        hotKey->_center = nullptr;
    }
    if (sharedCenter() == this) {
        sharedCenter() = nullptr;
    }
}

bool DDHotKeyCenter::registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                               DDHotKey::Task task) {
    if (refuseDuplicate(keyCode, modifierFlags)) {
        return false;
    }
    return _registerHotKey(DDHotKey::hotKeyWithKeyCode(keyCode, modifierFlags, std::move(task)));
}

bool DDHotKeyCenter::registerHotKeyWithKeyCode(std::uint16_t keyCode, ModifierFlags modifierFlags,
                                               HotKeyReceiver receiver) {
    if (refuseDuplicate(keyCode, modifierFlags)) {
        return false;
    }
    const auto hotKey = DDHotKey::hotKeyWithKeyCode(keyCode, modifierFlags, {});
    hotKey->_setTarget(receiver.target);
    hotKey->_setAction(std::move(receiver.action));
    hotKey->_setPressedAction(std::move(receiver.pressedAction));
    hotKey->_setObject(std::move(receiver.object));
    return _registerHotKey(hotKey);
}

bool DDHotKeyCenter::refuseDuplicate(std::uint16_t keyCode, ModifierFlags modifierFlags) {
    if (!hasRegisteredHotKeyWithKeyCode(keyCode, modifierFlags)) {
        return false;
    }
    _lastRefusal = Problem{
        TONQUIL_TEXT("Problem", "This key combination already does something else in Tonquil."),
        {}};
    return true;
}

bool DDHotKeyCenter::_registerHotKey(const std::shared_ptr<DDHotKey>& hotKey) {
    const auto handle =
        _service.registerHotKey(hotKey->keyCode(), hotKeyServiceMask(hotKey->modifierFlags()),
                                _nextHotKeyID, hotKey->actionString());
    if (!handle) {
        _lastRefusal = handle.error();
        return false;
    }
    _lastRefusal.reset();
    hotKey->setHotKeyRef(*handle);
    hotKey->setHotKeyID(_nextHotKeyID++);
    hotKey->_center = this;
    _registeredHotKeys.insert(hotKey);
    return true;
}

bool DDHotKeyCenter::hasRegisteredHotKeyWithKeyCode(std::uint16_t keyCode,
                                                    ModifierFlags modifierFlags) const {
    return !hotKeysMatchingPredicate(hasCombination(keyCode, modifierFlags)).empty();
}

DDHotKeySet DDHotKeyCenter::hotKeysMatchingPredicate(const Predicate& predicate) const {
    DDHotKeySet matching;
    for (const auto& hotKey : _registeredHotKeys) {
        if (predicate(*hotKey)) {
            matching.insert(hotKey);
        }
    }
    return matching;
}

DDHotKeySet DDHotKeyCenter::registeredHotKeys() const {
    return hotKeysMatchingPredicate(
        [](const DDHotKey& hotKey) { return hotKey.hotKeyRef().has_value(); });
}

void DDHotKeyCenter::unregisterHotKey(DDHotKey& hotKey) {
    const auto handle = hotKey.hotKeyRef();
    if (!handle) {
        return;
    }
    _service.unregisterHotKey(*handle);
    hotKey.setHotKeyRef(std::nullopt);
    hotKey._center = nullptr;
    // Found by value, because a hot key in its destructor has no shared_ptr to compare with. The
    // set may hold the last reference, so do not touch the hot key after this.
    const auto equal = std::find_if(_registeredHotKeys.begin(), _registeredHotKeys.end(),
                                    [&hotKey](const auto& each) { return each->isEqual(hotKey); });
    if (equal != _registeredHotKeys.end()) {
        _registeredHotKeys.erase(equal);
    }
}

void DDHotKeyCenter::unregisterHotKeysMatchingPredicate(const Predicate& predicate) {
    for (const auto& hotKey : hotKeysMatchingPredicate(predicate)) {
        unregisterHotKey(*hotKey);
    }
}

void DDHotKeyCenter::unregisterHotKeysWithTarget(const void* target) {
    unregisterHotKeysMatchingPredicate(
        [target](const DDHotKey& hotKey) { return hotKey.target() == target; });
}

void DDHotKeyCenter::unregisterHotKeysWithTarget(const void* target, const std::string& action) {
    unregisterHotKeysMatchingPredicate([target, &action](const DDHotKey& hotKey) {
        return hotKey.target() == target && hotKey.actionString() == action;
    });
}

void DDHotKeyCenter::unregisterHotKeyWithKeyCode(std::uint16_t keyCode,
                                                 ModifierFlags modifierFlags) {
    unregisterHotKeysMatchingPredicate(hasCombination(keyCode, modifierFlags));
}

void DDHotKeyCenter::unregisterAllHotKeys() {
    for (const auto& hotKey : DDHotKeySet(_registeredHotKeys)) {
        unregisterHotKey(*hotKey);
    }
}

std::shared_ptr<DDHotKey> DDHotKeyCenter::hotKeyWithID(std::uint32_t hotKeyID) const {
    const auto matching = hotKeysMatchingPredicate(
        [hotKeyID](const DDHotKey& hotKey) { return hotKey.hotKeyID() == hotKeyID; });
    if (matching.size() > 1 && _log) {
        _log("ERROR!");
    }
    return matching.empty() ? nullptr : *matching.begin();
}

void DDHotKeyCenter::handle(const HotKeyServiceEvent& event, Invocation invocation) const {
    // Kept alive, because the action may unregister it.
    const auto hotKey = hotKeyWithID(event.id);
    if (hotKey) {
        (hotKey.get()->*invocation)(eventFor(event, *hotKey));
    }
}

}  // namespace tonquil
