// SPDX-License-Identifier: MIT
#include "platform/posix/DiskThread.h"

#include <gtest/gtest.h>

#include <future>
#include <string>

#include "tests/support/ManualRunLoop.h"

namespace tonquil {
namespace {

TEST(DiskThread, RunsJobsInOrderAndCallsBackOnEventLoop) {
    ManualRunLoop loop;
    std::string told;
    const auto here = std::this_thread::get_id();
    {
        DiskThread disk(loop);
        std::promise<void> isReady;
        std::thread::id worker;
        disk.add(
            [&] {
                worker = std::this_thread::get_id();
                isReady.get_future().wait();
            },
            [&] {
                EXPECT_EQ(std::this_thread::get_id(), here);
                told += 'a';
                disk.add([] {}, [&] { told += 'c'; });
            });
        disk.add([] {}, [&] { told += 'b'; });
        EXPECT_EQ(loop.pollReadable(std::chrono::milliseconds(0)), 0U) << "The disk is slow.";
        isReady.set_value();
        while (told.size() < 3) {
            loop.pollReadable(std::chrono::seconds(20));
        }
        EXPECT_NE(worker, here);
        disk.add([] {},
                 [&] {
                     told += 'd';
                     disk.add([] {}, [&] { told += 'e'; });
                 });
        disk.finish();
        EXPECT_EQ(told, "abcde");
        disk.add([] {}, [&] { told += 'f'; });
    }
    EXPECT_EQ(told, "abcdef") << "Its end waits for what was added.";
}

}  // namespace
}  // namespace tonquil
