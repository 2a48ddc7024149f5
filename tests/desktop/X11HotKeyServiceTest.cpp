// SPDX-License-Identifier: MIT
#include "platform/x11/keys/X11HotKeyService.h"

#include <gmock/gmock.h>
#include <linux/input-event-codes.h>

#include "tests/support/ManualRunLoop.h"
#include "tests/support/XKeyboard.h"
#include "tests/support/XServer.h"

namespace tonquil {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr std::uint16_t virtualA = 0;
constexpr std::uint16_t virtualQ = 12;
constexpr std::uint16_t virtualF5 = 96;
constexpr HotKeyServiceMask control = HotKeyServiceModifier::control;
constexpr HotKeyServiceMask option = HotKeyServiceModifier::option;
constexpr HotKeyServiceMask command = HotKeyServiceModifier::command;

class X11HotKeys : public testing::Test {
 protected:
    void SetUp() override {
        const auto tell = [this](const char* what) {
            return [this, what](const HotKeyServiceEvent& event) {
                told.push_back(what + std::to_string(event.id));
                last = event;
            };
        };
        service->setHandlers(tell("down "), tell("up "));
    }
    HotKeyHandle add(std::uint16_t keyCode, HotKeyServiceMask modifiers, std::uint32_t id) {
        return service->registerHotKey(keyCode, modifiers, id, "").value();
    }
    /// Handles the server's events.
    void poll() {
        loop.advance(0ms);
        // A repeating key keeps the server sending events.
        for (int i = 0; i < 10 && loop.pollReadable(50ms) != 0; ++i) {
        }
    }
    void press(int key) {
        keyboard.press(key);
        poll();
    }
    void release(int key) {
        keyboard.release(key);
        poll();
    }
    void runProgram(const std::vector<std::string>& words) {
        const auto result =
            run({.command = words, .environment = {{"DISPLAY", server->display()}}});
        ASSERT_TRUE(result && result->succeeded()) << words.front();
        poll();
        loop.advance(X11HotKeyService::settlingTime);
        poll();
    }

    ManualRunLoop loop;
    // Its key codes are evdev's, as on real hardware; the dummy driver's are not.
    std::unique_ptr<XServer> server = XServer::start({.framebufferOnly = true}).value();
    XKeyboard keyboard{server->display()};
    std::vector<std::string> told;
    std::vector<std::string> log;
    HotKeyServiceEvent last;
    std::unique_ptr<X11HotKeyService> service =
        X11HotKeyService::open(server->display().c_str(), loop, [this](std::string_view line) {
            log.emplace_back(line);
        }).value();
};

TEST_F(X11HotKeys, ReportsPressesAndReleasesWithExactModifiers) {
    add(virtualA, control | option, 7);
    keyboard.movePointer(300, 200);
    keyboard.press(KEY_LEFTCTRL);
    press(KEY_A);
    release(KEY_A);
    EXPECT_THAT(told, ElementsAre()) << "with a modifier missing";
    keyboard.press(KEY_LEFTALT);
    press(KEY_A);
    EXPECT_THAT(told, ElementsAre("down 7"));
    EXPECT_EQ(last.modifierFlags, ModifierFlag::control | ModifierFlag::option);
    EXPECT_TRUE(last.x == 300 && last.y == 200);
    const auto time = last.timestamp;
    EXPECT_GT(time, 0ms);
    release(KEY_A);
    EXPECT_THAT(told, ElementsAre("down 7", "up 7"));
    EXPECT_GE(last.timestamp, time);
    keyboard.press(KEY_LEFTSHIFT);
    press(KEY_A);
    release(KEY_A);
    EXPECT_EQ(told.size(), 2U) << "with a modifier too many";
    keyboard.release(KEY_LEFTSHIFT);
    press(KEY_A);
    keyboard.release(KEY_LEFTALT);
    release(KEY_LEFTCTRL);
    keyboard.type(KEY_B);
    poll();
    EXPECT_EQ(told.size(), 3U) << "other keys come here meanwhile";
    server->kill();
    EXPECT_EQ(loop.pollReadable(5s), 1U);
    EXPECT_EQ(loop.pollReadable(0ms), 0U);
    loop.advance(1s);
    EXPECT_EQ(log.size(), 1U);
    EXPECT_FALSE(service->registerHotKey(virtualQ, 0, 2, ""));
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(X11HotKeys, IgnoresLocksAndLayout) {
    runProgram({"setxkbmap", "-layout", "us,ru", "-option", "grp:rctrl_toggle"});
    add(virtualQ, command, 1);
    for (const int key : {KEY_RESERVED, KEY_NUMLOCK, KEY_SCROLLLOCK, KEY_CAPSLOCK, KEY_RIGHTCTRL}) {
        SCOPED_TRACE(key);
        if (key != KEY_RESERVED) {
            keyboard.type(key);
        }
        told.clear();
        keyboard.press(KEY_LEFTMETA);
        press(KEY_Q);
        release(KEY_Q);
        keyboard.release(KEY_LEFTMETA);
        EXPECT_THAT(told, ElementsAre("down 1", "up 1"));
    }
    EXPECT_NE(last.modifierFlags & ModifierFlag::capsLock, 0U);
}

TEST_F(X11HotKeys, ReleasesBothOverlappingKeys) {
    add(virtualA, 0, 1);
    const auto second = add(virtualQ, 0, 2);
    runProgram({"xset", "r", "off"});
    press(KEY_A);
    press(KEY_Q);
    release(KEY_A);
    EXPECT_THAT(told, ElementsAre("down 1", "down 2", "up 1"));
    loop.advance(1s);
    EXPECT_EQ(told.size(), 3U) << "as long as it is down";
    const auto time = last.timestamp;
    release(KEY_Q);
    loop.advance(X11HotKeyService::releaseInterval);
    EXPECT_THAT(told, ElementsAre("down 1", "down 2", "up 1", "up 2"));
    EXPECT_GT(last.timestamp, time);
    press(KEY_Q);
    service->unregisterHotKey(second);
    release(KEY_Q);
    loop.advance(1s);
    EXPECT_EQ(told.size(), 5U) << "it was unregistered while it was held";
}

TEST_F(X11HotKeys, RefusesTakenCombinationCompletely) {
    // The other program grabs it only with Caps Lock on.
    ASSERT_TRUE(keyboard.grab(KEY_A, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK));
    const auto refused = service->registerHotKey(virtualA, control, 1, "");
    ASSERT_FALSE(refused);
    EXPECT_THAT(refused.error().sentence, testing::HasSubstr("Another program"));
    EXPECT_TRUE(keyboard.grab(KEY_A, XCB_MOD_MASK_CONTROL)) << "something of it was kept";
    keyboard.ungrab(KEY_A, XCB_MOD_MASK_CONTROL);
    keyboard.ungrab(KEY_A, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_LOCK);

    const auto handle = add(virtualA, control, 2);
    EXPECT_FALSE(service->registerHotKey(virtualA, control, 3, "")) << "it is our own already";
    EXPECT_FALSE(keyboard.grab(KEY_A, XCB_MOD_MASK_CONTROL));
    service->unregisterHotKey(handle);
    service->unregisterHotKey(handle);
    poll();
    // None, Lock, Mod2 where Num Lock is, both.
    for (const int locks : {0, 2, 16, 18}) {
        EXPECT_TRUE(keyboard.grab(KEY_A, XCB_MOD_MASK_CONTROL | locks)) << locks;
    }
}

TEST_F(X11HotKeys, FollowsRemappedModifierAndRefusesImpossibleKeys) {
    EXPECT_FALSE(service->registerHotKey(63, control, 1, "")) << "the fn key";
    EXPECT_FALSE(service->registerHotKey(999, control, 1, ""));
    EXPECT_FALSE(service->registerHotKey(virtualF5, control | option, 1, ""))
        << "switches terminals";
    add(virtualA, command, 1);
    runProgram({"xmodmap", "-e", "clear mod4", "-e", "clear mod2"});
    EXPECT_EQ(log.size(), 1U);
    EXPECT_FALSE(service->registerHotKey(virtualQ, command, 1, "")) << "there is no Super";
    runProgram({"xmodmap", "-e", "add mod3 = Super_L"});
    keyboard.press(KEY_LEFTMETA);
    press(KEY_A);
    EXPECT_THAT(told, ElementsAre("down 1"));
    EXPECT_EQ(last.modifierFlags, ModifierFlag::command);
    EXPECT_TRUE(keyboard.grab(KEY_A, XCB_MOD_MASK_4)) << "what it no longer is, is given up";
    EXPECT_TRUE(keyboard.grab(KEY_A, XCB_MOD_MASK_4 | XCB_MOD_MASK_2)) << "also with Num Lock";
}

TEST_F(X11HotKeys, ReportsHeldKeyOnceUnlessDownBeforeRegistration) {
    runProgram({"xset", "r", "rate", "50", "100"});
    press(KEY_F5);
    add(virtualF5, 0, 1);
    // Real time, because the server does the repeating.
    const auto holdOn = [this] {
        std::size_t readings = 0;
        for (int i = 0; i < 20; ++i) {
            readings += loop.pollReadable(20ms);
            loop.advance(X11HotKeyService::releaseInterval);
        }
        EXPECT_GT(readings, 5U) << "the server does not repeat, so nothing is tested";
    };
    holdOn();
    release(KEY_F5);
    loop.advance(X11HotKeyService::releaseInterval);
    EXPECT_THAT(told, ElementsAre());
    press(KEY_F5);
    holdOn();
    EXPECT_THAT(told, ElementsAre("down 1"));
    release(KEY_F5);
    EXPECT_THAT(told, ElementsAre("down 1", "up 1"));
}

}  // namespace
}  // namespace tonquil
