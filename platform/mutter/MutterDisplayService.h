// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "platform/colord/ProfileFiles.h"
#include "platform/listing/KernelEdid.h"
#include "platform/listing/ListedDisplayService.h"
#include "platform/mutter/MutterBus.h"
#include "platform/mutter/MutterDisplays.h"
#include "platform/mutter/MutterGamma.h"
#include "platform/mutter/NightLight.h"

namespace tonquil {

/// The displays of GNOME's compositor, Mutter, by its services on the session bus.
///
/// What is on the hardware may be the desktop's night light or our own correction, so the system's
/// table is never read back: it is the calibration in the profile that the colour management
/// service names, or a straight line.
///
/// With a run loop, only opening and the first ramps before the loop runs are waited for, each for
/// a bounded time.
class MutterDisplayService final : public ListedDisplayService {
 public:
    /// How long changes of the monitors are collected.
    static constexpr std::chrono::milliseconds quietTime{150};

    enum class Generation : std::uint8_t {
        Calibration,  ///< A calibration session per monitor, which ends with our connection.
        Crtc,         ///< The hardware's ramps, for any program to set; they outlive it.
    };
    struct Surroundings {
        /// Must outlive the service; without one, changes are not watched for.
        RunLoop* runLoop = nullptr;
        Log log = {};
        /// Called once when the session bus or the compositor has gone.
        std::function<void()> lost = {};
        /// Addresses of the buses.
        std::string sessionBus = {};
        std::string systemBus = {};
        /// How long to wait for the bus, and for the compositor's answers.
        std::chrono::milliseconds longestGreeting{2000};
        std::chrono::milliseconds longestAnswer{2000};
        std::filesystem::path connectors = kernelConnectors;
    };

    /// Connects to the compositor's service of that generation, or of the newest that there is. A
    /// problem where there is none.
    [[nodiscard]] static Result<std::unique_ptr<MutterDisplayService>> open(
        std::optional<Generation> wanted, Surroundings with);
    /// Whether there is any generation; changes nothing.
    [[nodiscard]] static bool isOffered(const std::string& sessionBus,
                                        std::chrono::milliseconds longestGreeting);
    ~MutterDisplayService() override;

    void setTransferTable(DisplayID display, const GammaTable& table) override;
    [[nodiscard]] std::uint32_t getTransferTable(DisplayID display, GammaTable& table) override;
    using DisplayService::restoreSystemCalibration;
    void restoreSystemCalibration(std::span<const DisplayID> displays) override;
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override;
    [[nodiscard]] bool canBeDisturbed() const override { return _generation == Generation::Crtc; }
    [[nodiscard]] bool suspendsNightLight() const override {
        return _generation == Generation::Calibration;
    }
    void setNightLightKept(bool isKept) override;

 protected:
    [[nodiscard]] std::vector<ListedDisplay> layout() override;
    [[nodiscard]] bool areCorrectionsLasting() const override {
        return _generation == Generation::Crtc;
    }
    void catchUp() override;
    void beginBatch() override;
    bool endBatch() override;

 private:
    explicit MutterDisplayService(Surroundings with);

    [[nodiscard]] Result<void> connect(std::optional<Generation> wanted);
    void useGeneration();
    [[nodiscard]] bool wait(const std::function<bool()>& isDone, std::chrono::milliseconds limit);
    void hasStarted() { _isStarting = false; }
    /// Asks what the displays are and waits for the answer; false if there is none.
    [[nodiscard]] bool refresh();
    void monitorsChanged();
    void askForLayout();
    void takeLayout(MutterLayout layout);
    [[nodiscard]] HardwareRamp rampFor(const std::string& connector, std::uint32_t size) const;
    /// Otherwise the log says once why not.
    [[nodiscard]] bool isReached(DisplayID display);
    /// Sends the ramps of all displays that have a correction.
    void sendAgain();
    void gammaChanged();
    void layoutMayHaveChanged();
    void calibrationsChanged();
    void connectionLost(const std::string& sentence);

    Surroundings _with;
    MutterDisplays _displays;
    MutterLayout _layout;
    Generation _generation = Generation::Calibration;
    bool _isLayoutKnown = false;
    bool _haveMonitorsChanged = true;
    bool _isNightLightKept = true;
    /// Until the run loop runs for the first time, answers are waited for.
    bool _isStarting = true;
    bool _isObserved = false;
    bool _isLost = false;
    bool _allReached = true;
    MutterBus _bus;
    ProfileFiles _profiles;
    NightLight _nightLight;
    std::unique_ptr<MutterGamma> _gamma;
    std::unique_ptr<RunLoop::Handle> _started;
    std::unique_ptr<RunLoop::Handle> _quiet;
    std::unique_ptr<RunLoop::Handle> _retry;
    std::unique_ptr<RunLoop::Handle> _announcement;
    std::unique_ptr<RunLoop::Handle> _news;
};

}  // namespace tonquil
