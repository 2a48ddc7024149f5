// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "platform/colord/ProfileFiles.h"
#include "platform/listing/KernelEdid.h"
#include "platform/listing/ListedDisplayService.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WlrOutputs.h"

namespace tonquil {

/// The displays of a Wayland compositor that lends their gamma tables by wlr-gamma-control.
///
/// A correction stays as long as the service lives, and nobody can overwrite it or read it back.
/// So the system's table is the calibration in the profile that the colour management service
/// names, or a straight line, and nothing is kept about earlier corrections. A display that another
/// program holds is listed with that reason and asked for again every `retryInterval`, given a run
/// loop.
class WlrDisplayService final : public ListedDisplayService {
 public:
    /// How long the compositor must have been silent for a change to be over.
    static constexpr std::chrono::milliseconds quietTime{150};
    static constexpr std::chrono::milliseconds retryInterval{10'000};

    struct Surroundings {
        /// Must outlive the service; without one, changes are not watched for.
        RunLoop* runLoop = nullptr;
        Log log = {};
        /// Called once when the compositor has gone.
        std::function<void()> lost = {};
        std::filesystem::path connectors = kernelConnectors;
        /// The address of the bus that the colour management service is on.
        std::string systemBus = {};
    };

    /// Connects to the compositor named as in WAYLAND_DISPLAY (null takes the environment's). A
    /// problem where it does not lend gamma tables.
    [[nodiscard]] static Result<std::unique_ptr<WlrDisplayService>> open(const char* display,
                                                                         Surroundings with);
    /// Whether the compositor that WAYLAND_DISPLAY names lends gamma tables; takes none.
    [[nodiscard]] static bool isOffered();
    ~WlrDisplayService() override;

    void setTransferTable(DisplayID display, const GammaTable& table) override;
    [[nodiscard]] std::uint32_t getTransferTable(DisplayID display, GammaTable& table) override;
    using DisplayService::restoreSystemCalibration;
    /// Gives the displays' tables back to the compositor, so that other programs may have them.
    void restoreSystemCalibration(std::span<const DisplayID> displays) override;
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override;
    [[nodiscard]] bool canBeDisturbed() const override { return false; }

 protected:
    [[nodiscard]] std::vector<ListedDisplay> layout() override;
    [[nodiscard]] bool areCorrectionsLasting() const override { return false; }
    void catchUp() override;
    void beginBatch() override;
    bool endBatch() override;

 private:
    WlrDisplayService(std::unique_ptr<WaylandConnection> connection, Surroundings with);

    /// Complete outputs, the main one first.
    [[nodiscard]] std::vector<WlrOutput*> outputs();
    void identify(WlrOutput& output);
    /// Null when there is none with this ID; 0 means the main display.
    [[nodiscard]] WlrOutput* find(DisplayID display);
    /// The same, but only if its gamma control is held, after asking for it if need be; otherwise
    /// the log says once why not.
    [[nodiscard]] WlrOutput* correctable(DisplayID display);
    void askForProfiles();
    void calibrationsChanged();
    void takeEvents();
    void outputsChanged();
    void displaysChanged();
    void announceLosses();
    void retryLater();
    void retry();
    void connectionLost();
    void sendRamps();

    std::unique_ptr<WaylandConnection> _connection;
    Surroundings _with;
    ProfileFiles _profiles;
    std::unique_ptr<WlrOutputs> _outputs;
    /// The displays that a table was set for, whether or not it got there, and not restored since.
    std::set<DisplayID> _wanted;
    /// The answer to the ramps sent last; while it is awaited no more are sent.
    std::unique_ptr<wl_callback, DestroyWaylandProxy> _sent;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _quiet;
    std::unique_ptr<RunLoop::Handle> _retry;
    std::unique_ptr<RunLoop::Handle> _news;
    bool _allReached = true;
    bool _isLostKnown = false;
};

}  // namespace tonquil
