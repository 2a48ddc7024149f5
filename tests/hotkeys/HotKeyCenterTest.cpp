// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "hotkeys/DDHotKeyCenter.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

constexpr std::uint16_t f5 = 96;

/// A platform that grants everything but what somebody else holds.
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
                                        std::uint32_t id) override {
        if (isHeldByOthers) {
            return problem("Another program holds it.");
        }
        grants[++_lastHandle] = {keyCode, modifiers, id};
        return _lastHandle;
    }
    void unregisterHotKey(HotKeyHandle handle) override { grants.erase(handle); }
    void press(std::uint32_t id) const { _pressed(event(id)); }
    void release(std::uint32_t id) const { _released(event(id)); }
    [[nodiscard]] bool isHeard() const { return _pressed || _released; }

    std::map<HotKeyHandle, Grant> grants;
    bool isHeldByOthers = false;

 private:
    static HotKeyServiceEvent event(std::uint32_t id) {
        return {id, 30, 40, ModifierFlag::control, std::chrono::milliseconds(1234)};
    }
    HotKeyHandle _lastHandle = 70;
    Handler _pressed;
    Handler _released;
};

class HotKeyCenterTest : public testing::Test {
 protected:
    HotKeyAction told(const std::string& name) {
        return {name, [this, name](const HotKeyEvent&, const std::any& object) {
                    heard.push_back(name + (object.has_value()
                                                ? " " + std::any_cast<std::string>(object)
                                                : std::string()));
                }};
    }
    DDHotKey::Task task() {
        return [this](const HotKeyEvent&) { heard.emplace_back("task"); };
    }
    void pressAndRelease(std::uint32_t id) const {
        service.press(id);
        service.release(id);
    }

    GrantingService service;
    std::vector<std::string> log;
    std::vector<std::string> heard;
    HotKeyEvent last;
    std::unique_ptr<DDHotKeyCenter> center = std::make_unique<DDHotKeyCenter>(
        service, [this](std::string_view line) { log.emplace_back(line); });
};

TEST_F(HotKeyCenterTest, AsksTheServiceForTheFourModifiersAlone) {
    struct Row {
        ModifierFlags flags;
        HotKeyServiceMask mask;
    };
    std::uint16_t keyCode = 0;
    service.isHeldByOthers = true;
    EXPECT_FALSE(center->registerHotKeyWithKeyCode(f5, 0, task()));
    EXPECT_EQ(center->lastRefusal()->sentence, "Another program holds it.");
    EXPECT_TRUE(center->registeredHotKeys().empty());
    service.isHeldByOthers = false;
    for (const Row& row :
         {Row{ModifierFlag::command, 0x100}, Row{ModifierFlag::shift, 0x200},
          Row{ModifierFlag::option, 0x800}, Row{ModifierFlag::control, 0x1000},
          Row{0xFFFFFFFF, 0x1B00}, Row{0xA10000 | ModifierFlag::control, 0x1000}}) {
        SCOPED_TRACE(row.flags);
        ASSERT_TRUE(center->registerHotKeyWithKeyCode(++keyCode, row.flags, task()));
        EXPECT_EQ(service.grants.rbegin()->second.keyCode, keyCode);
        EXPECT_EQ(service.grants.rbegin()->second.modifiers, row.mask);
        EXPECT_EQ(service.grants.rbegin()->second.id, keyCode) << "numbers go up by one";
    }
}

TEST_F(HotKeyCenterTest, RefusesACombinationThatIsRegisteredAndComparesAllFlags) {
    const ModifierFlags plain = ModifierFlag::control;
    const ModifierFlags withFunction = plain | ModifierFlag::function;
    EXPECT_TRUE(center->registerHotKeyWithKeyCode(f5, withFunction, task()));
    EXPECT_FALSE(center->registerHotKeyWithKeyCode(f5, withFunction, HotKeyReceiver{}));
    EXPECT_TRUE(center->lastRefusal());
    EXPECT_TRUE(center->hasRegisteredHotKeyWithKeyCode(f5, withFunction));
    EXPECT_FALSE(center->hasRegisteredHotKeyWithKeyCode(f5, plain));
    EXPECT_TRUE(center->registerHotKeyWithKeyCode(f5, plain, task()));
    EXPECT_FALSE(center->lastRefusal());
    EXPECT_EQ(center->registeredHotKeys().size(), 2U);
}

TEST_F(HotKeyCenterTest, InvokesWhatTheReceiverRespondsTo) {
    const int target = 0;
    const HotKeyAction deaf{"toggle", {}};
    struct Row {
        const char* name;
        HotKeyReceiver receiver;
        std::vector<std::string> heard;
    };
    const std::vector<Row> rows{
        {"both", {&target, told("up"), told("down"), std::string("it")}, {"down it", "up it"}},
        {"no object", {&target, told("up"), {}, {}}, {"up"}},
        {"no target", {nullptr, told("up"), told("down"), {}}, {}},
        {"a target that does not respond", {&target, deaf, deaf, {}}, {}},
    };
    std::uint32_t id = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        heard.clear();
        ASSERT_TRUE(
            center->registerHotKeyWithKeyCode(static_cast<std::uint16_t>(++id), 0, row.receiver));
        pressAndRelease(id);
        EXPECT_EQ(heard, row.heard);
    }
    heard.clear();
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(50, 0, task()));
    pressAndRelease(++id);
    EXPECT_THAT(heard, ElementsAre("task")) << "once, on release";
    pressAndRelease(id + 1);
    EXPECT_EQ(heard.size(), 1U) << "a number of nobody's";
}

TEST_F(HotKeyCenterTest, AnActionHearsOfTheKeyAndMayUnregisterAndTheEndGivesEverythingUp) {
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(f5, 0, [this](const HotKeyEvent& event) {
        center->unregisterAllHotKeys();
        last = event;
    }));
    service.release(1);
    EXPECT_EQ(last.type, 11);
    EXPECT_EQ(last.keyCode, f5);
    EXPECT_EQ(last.x, 30);
    EXPECT_EQ(last.modifierFlags, ModifierFlag::control);
    EXPECT_EQ(last.timestamp, std::chrono::milliseconds(1234));
    EXPECT_TRUE(service.grants.empty());
    ASSERT_TRUE(center->registerHotKeyWithKeyCode(1, 0, task()));
    DDHotKeyCenter::setSharedHotKeyCenter(center.get());
    center.reset();
    EXPECT_EQ(DDHotKeyCenter::sharedHotKeyCenter(), nullptr);
    EXPECT_TRUE(service.grants.empty());
    EXPECT_FALSE(service.isHeard());
}

TEST_F(HotKeyCenterTest, UnregistersThoseThatAreMeantAndNoOthers) {
    const int first = 0;
    const int second = 0;
    using Unregister = std::function<void()>;
    const std::vector<std::pair<Unregister, std::vector<std::uint16_t>>> rows{
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
