// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hotkeys/DDHotKeyCenter.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

constexpr std::uint16_t f5 = 96;

/// A platform that grants every combination except those held by another program.
class GrantingService final : public HotKeyService {
 public:
    struct Grant {
        std::uint16_t keyCode;
        HotKeyServiceMask modifiers;
        std::uint32_t id;
    };

    void setHandlers(Handler pressed, Handler released) override {
        _pressed = std::move(pressed);
        _released = std::move(released);
    }
    Result<HotKeyHandle> registerHotKey(std::uint16_t keyCode, HotKeyServiceMask modifiers,
                                        std::uint32_t id, const std::string& /*action*/) override {
        if (isHeldByOthers) {
            return problem("Another program holds it.");
        }
        grants[++_lastHandle] = {keyCode, modifiers, id};
        return _lastHandle;
    }
    void unregisterHotKey(HotKeyHandle handle) override { grants.erase(handle); }
    void press(std::uint32_t id) const { _pressed({.id = id}); }
    void release(std::uint32_t id) const { _released({id, 30, 40, ModifierFlag::control, {}}); }
    [[nodiscard]] bool isHeard() const { return _pressed || _released; }

    std::map<HotKeyHandle, Grant> grants;
    bool isHeldByOthers = false;

 private:
    HotKeyHandle _lastHandle = 70;
    Handler _pressed;
    Handler _released;
};

class HotKeyCenterTest : public testing::Test {
 protected:
    HotKeyAction told(const std::string& name) {
        return {name, [this, name](const HotKeyEvent&, const std::any& object) {
                    const auto* const text = std::any_cast<std::string>(&object);
                    heard.push_back(name + (text != nullptr ? *text : ""));
                }};
    }
    DDHotKey::Task task() {
        return [this](const HotKeyEvent&) { heard.emplace_back("task"); };
    }

    GrantingService service;
    std::vector<std::string> heard;
    std::unique_ptr<DDHotKeyCenter> center = std::make_unique<DDHotKeyCenter>(service, Log());
};

TEST_F(HotKeyCenterTest, RegistersOnlyTheFourModifiers) {
    service.isHeldByOthers = true;
    EXPECT_FALSE(center->registerHotKeyWithKeyCode(f5, 0, task()));
    EXPECT_EQ(center->lastRefusal()->sentence, "Another program holds it.");
    EXPECT_TRUE(center->registeredHotKeys().empty());
    service.isHeldByOthers = false;
    std::uint16_t keyCode = 0;
    for (const auto& [flags, mask] : std::vector<std::pair<ModifierFlags, HotKeyServiceMask>>{
             {ModifierFlag::command, 0x100},
             {ModifierFlag::shift, 0x200},
             {ModifierFlag::option, 0x800},
             {0xA10000 | ModifierFlag::control, 0x1000}}) {
        SCOPED_TRACE(flags);
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(++keyCode, flags, task()));
        const auto& grant = service.grants.rbegin()->second;
        EXPECT_EQ(grant.keyCode, keyCode);
        EXPECT_EQ(grant.modifiers, mask);
        EXPECT_EQ(grant.id, keyCode) << "numbers go up by one";
    }
}

TEST_F(HotKeyCenterTest, RefusesRegisteredCombinationAndComparesAllFlags) {
    const ModifierFlags withFunction = ModifierFlag::control | ModifierFlag::function;
    EXPECT_TRUE(center->registerHotKeyWithKeyCode(f5, withFunction, task()));
    EXPECT_FALSE(center->registerHotKeyWithKeyCode(f5, withFunction, HotKeyReceiver{}));
    EXPECT_TRUE(center->lastRefusal());
    EXPECT_FALSE(center->hasRegisteredHotKeyWithKeyCode(f5, ModifierFlag::control));
    EXPECT_TRUE(center->registerHotKeyWithKeyCode(f5, ModifierFlag::control, task()));
    EXPECT_FALSE(center->lastRefusal());
}

TEST_F(HotKeyCenterTest, InvokesActionsThatReceiverImplements) {
    const int target = 0;
    const std::vector<HotKeyReceiver> receivers{
        {&target, told("up"), told("down"), std::string(" it")},
        {&target, told("up"), {}, {}},
        {nullptr, told("up"), told("down"), {}},
        {&target, {"toggle", {}}, {"toggle", {}}, {}}};
    std::uint16_t keyCode = 0;
    for (const HotKeyReceiver& receiver : receivers) {
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(++keyCode, 0, receiver));
    }
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(++keyCode, 0, task()));
    // The last ID is not registered.
    for (std::uint32_t id = 1; id <= receivers.size() + 2; ++id) {
        service.press(id);
        service.release(id);
    }
    EXPECT_THAT(heard, ElementsAre("down it", "up it", "up", "task")) << "a task on release";
}

TEST_F(HotKeyCenterTest, ActionGetsEventAndMayUnregisterAndDestructorReleasesAll) {
    HotKeyEvent last;
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(f5, 0, [&](const HotKeyEvent& event) {
        center->unregisterAllHotKeys();
        last = event;
    }));
    service.release(1);
    EXPECT_EQ(last.type, 11);
    EXPECT_EQ(last.keyCode, f5);
    EXPECT_EQ(last.x, 30);
    EXPECT_EQ(last.modifierFlags, ModifierFlag::control);
    EXPECT_TRUE(service.grants.empty());
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(1, 0, task()));
    DDHotKeyCenter::setSharedHotKeyCenter(center.get());
    center.reset();
    EXPECT_EQ(DDHotKeyCenter::sharedHotKeyCenter(), nullptr);
    EXPECT_TRUE(service.grants.empty());
    EXPECT_FALSE(service.isHeard());
}

TEST_F(HotKeyCenterTest, UnregistersOnlyMatchingHotKeys) {
    const int first = 0;
    const int second = 0;
    const std::vector<std::pair<std::function<void()>, std::vector<std::uint16_t>>> rows{
        {[&] { center->unregisterHotKeysWithTarget(&first); }, {3, 3}},
        {[&] { center->unregisterHotKeysWithTarget(&first, "toggle"); }, {2, 3, 3}},
        {[&] { center->unregisterHotKeyWithKeyCode(3, 0); }, {1, 2, 3}},
        {[&] { center->unregisterAllHotKeys(); }, {}}};
    for (const auto& [unregister, left] : rows) {
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(1, 0, {&first, told("toggle"), {}, {}}));
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(2, 0, {&first, told("show"), {}, {}}));
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(3, 0, {&second, told("toggle"), {}, {}}));
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(3, ModifierFlag::shift, task()));
        unregister();
        std::vector<std::uint16_t> keyCodes;
        for (const auto& [handle, grant] : service.grants) {
            keyCodes.push_back(grant.keyCode);
        }
        EXPECT_EQ(keyCodes, left);
        center->unregisterAllHotKeys();
    }
}

}  // namespace
}  // namespace tonquil
