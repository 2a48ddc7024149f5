// SPDX-License-Identifier: MIT
#include "tests/support/ManualRunLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/FileDescriptor.h"

namespace tonquil {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

class ManualRunLoopTest : public testing::Test {
 protected:
    RunLoop::Call note(const std::string& name) {
        return [this, name] {
            const auto time = std::chrono::duration_cast<milliseconds>(_loop.now() - _start);
            _notes.push_back(name + "@" + std::to_string(time.count()));
        };
    }

    ManualRunLoop _loop;
    RunLoop::Clock::time_point _start = _loop.now();
    std::vector<std::string> _notes;
};

TEST_F(ManualRunLoopTest, FiresTimersInOrderOfTimeAndThenOfMaking) {
    const auto late = _loop.callOnce(milliseconds(30), note("late"));
    const auto first = _loop.callOnce(milliseconds(10), note("first"));
    const auto second = _loop.callOnce(milliseconds(10), note("second"));
    const auto repeated = _loop.callRepeatedly(milliseconds(15), note("repeated"));

    _loop.advance(milliseconds(9));
    EXPECT_THAT(_notes, ElementsAre());
    _loop.advance(milliseconds(36));
    EXPECT_THAT(_notes, ElementsAre("first@10", "second@10", "repeated@15", "late@30",
                                    "repeated@30", "repeated@45"));
    EXPECT_EQ(_loop.now() - _start, milliseconds(45));
}

TEST_F(ManualRunLoopTest, RunsPostedWorkBetweenTimers) {
    const auto poster = _loop.callOnce(milliseconds(1), [this] {
        _loop.post([this] {
            note("posted")();
            _loop.post(note("posted by that"));
        });
        note("timer")();
    });
    const auto other = _loop.callOnce(milliseconds(1), note("other"));
    _loop.post(note("before"));

    _loop.advance(milliseconds(1));
    EXPECT_THAT(_notes,
                ElementsAre("before@0", "timer@1", "posted@1", "posted by that@1", "other@1"));
    EXPECT_EQ(_loop.runPosted(), 0U);
}

TEST_F(ManualRunLoopTest, LetsATimerMakeTimersAndEndItselfAndOthers) {
    std::unique_ptr<RunLoop::Handle> itself;
    std::unique_ptr<RunLoop::Handle> made;
    auto other = _loop.callOnce(milliseconds(20), note("ended before it was due"));
    // What the function holds must still be there after its handle has gone.
    const auto held = std::make_shared<std::string>("itself");
    itself = _loop.callRepeatedly(milliseconds(10), [&, held] {
        itself.reset();
        other.reset();
        made = _loop.callOnce(milliseconds(5), note("made"));
        note (*held)();
    });

    _loop.advance(milliseconds(100));
    EXPECT_THAT(_notes, ElementsAre("itself@10", "made@15"));
    EXPECT_EQ(held.use_count(), 1) << "The function of an ended timer is destroyed.";
}

TEST_F(ManualRunLoopTest, CallsOnlyForDescriptorsThatCanBeRead) {
    std::array<int, 2> quietEnds{};
    std::array<int, 2> filledEnds{};
    ASSERT_EQ(pipe(quietEnds.data()), 0);
    ASSERT_EQ(pipe(filledEnds.data()), 0);
    const FileDescriptor quiet(quietEnds[0]);
    FileDescriptor quietWriter(quietEnds[1]);
    const FileDescriptor filled(filledEnds[0]);
    const FileDescriptor filledWriter(filledEnds[1]);
    ASSERT_EQ(write(filledWriter.get(), "x", 1), 1);

    std::unique_ptr<RunLoop::Handle> itself;
    std::unique_ptr<RunLoop::Handle> twin;
    const auto quietWatch = _loop.watchReadable(quiet.get(), note("quiet"));
    itself = _loop.watchReadable(filled.get(), [&] {
        note("filled")();
        _loop.post(note("posted"));
        twin.reset();
        itself.reset();
    });
    twin = _loop.watchReadable(filled.get(), note("ended before its turn"));

    EXPECT_EQ(_loop.pollReadable(milliseconds(0)), 1U);
    EXPECT_THAT(_notes, ElementsAre("filled@0", "posted@0"));
    EXPECT_EQ(_loop.pollReadable(milliseconds(0)), 0U);
    quietWriter.close();
    EXPECT_EQ(_loop.pollReadable(milliseconds(0)), 1U) << "The end of a file can be read.";
}

}  // namespace
}  // namespace tonquil
