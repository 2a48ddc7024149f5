// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "foundation/Log.h"
#include "foundation/Problem.h"
#include "foundation/RunLoop.h"
#include "platform/kde/KdeCorrection.h"
#include "platform/kde/KdeOutputs.h"
#include "platform/kde/KdeProfileFiles.h"
#include "platform/listing/ListedDisplayService.h"
#include "platform/wayland/WaylandConnection.h"

namespace tonquil {

/// The displays of KDE's compositor, which takes a colour profile for each.
///
/// A correction is the person's own profile with another calibration. The compositor keeps it when
/// the program ends, and tells when somebody chooses another profile; that one is then the base,
/// and is what restoring gives back.
class KdeDisplayService final : public ListedDisplayService {
 public:
    /// How long the compositor must have been silent for a change to be over.
    static constexpr std::chrono::milliseconds quietTime{150};

    struct Surroundings {
        /// Where our profiles and the notes of the person's are kept; made when it is needed. An
        /// absolute path.
        std::filesystem::path state;
        /// Must outlive the service; without one, changes are not watched for.
        RunLoop* runLoop = nullptr;
        Log log = {};
        /// Called once when the compositor has gone.
        std::function<void()> lost = {};
    };

    /// Connects to the compositor named as in WAYLAND_DISPLAY (null takes the environment's). A
    /// problem where it is not KDE's.
    [[nodiscard]] static Result<std::unique_ptr<KdeDisplayService>> open(const char* display,
                                                                         Surroundings with);
    /// Whether the compositor that WAYLAND_DISPLAY names is KDE's.
    [[nodiscard]] static bool isOffered();
    /// Makes the changes still to be made first, unless the compositor takes too long.
    ~KdeDisplayService() override;

    void setTransferTable(DisplayID display, const GammaTable& table) override;
    [[nodiscard]] std::uint32_t getTransferTable(DisplayID display, GammaTable& table) override;
    /// Also of those that are away: they get theirs when they come back.
    void restoreSystemCalibration() override;
    void restoreSystemCalibration(std::span<const DisplayID> displays) override;
    [[nodiscard]] std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) override;
    [[nodiscard]] bool canBeDisturbed() const override { return false; }

 protected:
    [[nodiscard]] std::vector<ListedDisplay> layout() override;
    [[nodiscard]] bool areCorrectionsLasting() const override { return true; }
    void catchUp() override;
    void beginBatch() override;
    bool endBatch() override;

 private:
    /// A display that is or was there.
    struct Display {
        Display(ListedDisplay said, const KdeCorrection::Surroundings& with, const std::string& key)
            : listed(std::move(said)), correction(with, key) {}

        /// Without what may change while it stays the same display.
        ListedDisplay listed;
        KdeCorrection correction;
        const KdeOutput* output = nullptr;
    };

    KdeDisplayService(std::unique_ptr<WaylandConnection> connection, Surroundings with);

    /// Brings the displays in line with the outputs.
    void match();
    [[nodiscard]] Display& displayOn(const KdeOutput& output);
    /// Those that are there, the main one first.
    [[nodiscard]] std::vector<Display*> present();
    /// Null when there is none with this ID; 0 means the main display.
    [[nodiscard]] Display* find(DisplayID display);
    /// The same, but only if it takes profiles; otherwise the log says once why not.
    [[nodiscard]] Display* correctable(DisplayID display);
    [[nodiscard]] std::string obstacle(const Display& display) const;
    void obstacleChanged(const std::string& key, const std::string& detail);
    void takeEvents();
    void outputsChanged();
    void displaysChanged();
    void connectionLost();

    std::unique_ptr<WaylandConnection> _connection;
    Surroundings _with;
    KdeProfileFiles _files;
    std::map<std::string, Display> _displays;
    std::unique_ptr<KdeOutputs> _outputs;
    std::unique_ptr<RunLoop::Handle> _watch;
    std::unique_ptr<RunLoop::Handle> _quiet;
    bool _allReached = true;
    bool _isLostKnown = false;
};

}  // namespace tonquil
