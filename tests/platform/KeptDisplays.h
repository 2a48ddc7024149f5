// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "screens/DisplayService.h"
#include "tests/support/ManualRunLoop.h"

namespace tonquil {

/// A program that keeps a table on every display of a Wayland compositor.
template <typename Service, typename Compositor>
class KeptDisplays : public testing::Test {
 protected:
    KeptDisplays() { table.levels.fill(0.25F); }
    void open(typename Service::Surroundings with = {}) {
        with.runLoop = &loop;
        with.log = [this](std::string_view line) { log.emplace_back(line); };
        with.lost = [this] { ++losses; };
        service = Service::open(compositor.socket().c_str(), std::move(with)).value();
        subscription =
            service->registerReconfigurationCallback([this](DisplayID, ReconfigurationFlags flags) {
                if (flags != beginConfiguration) {
                    correct();
                }
            });
        correct();
    }
    void correct() {
        const DisplayBatch batch(*service);
        for (const DisplayID display : service->onlineDisplays(25)) {
            service->setTransferTable(display, table);
        }
    }
    /// Lets events come and the quiet time pass until it is so.
    bool comesTrue(const std::function<bool()>& isSo) {
        for (int turn = 0; turn < 2500 && !isSo(); ++turn) {
            if (loop.pollReadable(std::chrono::milliseconds(2)) == 0) {
                loop.advance(Service::quietTime);
            }
        }
        return isSo();
    }
    bool isCorrected(const std::string& name) {
        HardwareRamp ramp(compositor.ramp(name).size());
        ramp.setTable(table);
        return compositor.ramp(name) == ramp && ramp.size() >= 2;
    }
    bool isObstructed() { return !service->description(0).obstacle.empty(); }

    ManualRunLoop loop;
    std::vector<std::string> log;
    GammaTable table;
    int losses = 0;
    Compositor compositor;
    std::unique_ptr<Service> service;
    std::unique_ptr<DisplayService::Subscription> subscription;
};

}  // namespace tonquil
