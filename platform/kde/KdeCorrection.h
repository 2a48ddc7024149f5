// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "foundation/RunLoop.h"
#include "platform/kde/KdeConfiguration.h"
#include "platform/kde/KdeOutput.h"
#include "platform/kde/KdeProfileFiles.h"

namespace tonquil {

/// Which colour profile one display should have, and the steps to set it: the person's own, or ours
/// with a correction laid over it. It outlasts an unplugging of the display.
///
/// Before ours is set for the first time, the person's choice is noted on the disk.
class KdeCorrection {
 public:
    /// At most 15 changes a second: each is a file and a new set-up of the compositor's outputs.
    static constexpr std::chrono::milliseconds shortestInterval{67};
    static constexpr std::chrono::milliseconds retryInterval{10'000};

    struct Surroundings {
        const KdeProfileFiles& files;
        /// Without one, changes go out at once and nothing is tried again later.
        RunLoop* runLoop = nullptr;
        /// Sends what was asked of the compositor.
        std::function<void()> flush;
        /// Called when the obstacle comes, changes or goes, with details for the log if there are
        /// any.
        std::function<void(const std::string& detail)> obstacleChanged;
    };

    /// `key` tells the display from others.
    KdeCorrection(Surroundings with, const std::string& key);
    KdeCorrection(const KdeCorrection&) = delete;
    KdeCorrection& operator=(const KdeCorrection&) = delete;
    ~KdeCorrection() = default;

    /// The display is on this output and has what its properties say; null when it is away.
    /// `management` is null where profiles cannot be set.
    void see(const KdeOutput* output, kde_output_management_v2* management);

    void correct(const HardwareRamp& ramp);
    void restore();
    /// Puts back what somebody else has replaced; to be called once it is known what they have set
    /// and the new base, if there is one, has been corrected.
    void keep();
    /// Makes the changes still to be made, as fast as the compositor answers.
    void hurry();

    /// The calibration of the profile that the person has chosen, read anew from its file.
    const HardwareRamp& readCalibration();
    /// The calibration as it was last read.
    [[nodiscard]] const HardwareRamp& calibration() const { return _base.calibration; }
    /// Whether nothing is on its way or still to be sent.
    [[nodiscard]] bool isSettled() const;
    /// Why the last change was not made, as a sentence; empty if it was.
    [[nodiscard]] const std::string& obstacle() const { return _obstacle; }

 private:
    enum class Wanted : std::uint8_t { AsFound, Corrected, Theirs };

    /// A problem, and nothing known of their choice, where it is noted but cannot be read now.
    [[nodiscard]] Result<void> adopt(const KdeProfileChoice& present);
    void send();
    [[nodiscard]] Result<void> prepare();
    void answered(bool isOurs, bool isApplied);
    void tryAgainOr(const std::string& obstacle, const std::string& detail);
    void setObstacle(std::string obstacle, const std::string& detail);

    Surroundings _with;
    /// Our own profile.
    std::string _path;
    const KdeOutput* _output = nullptr;
    kde_output_management_v2* _management = nullptr;

    /// What the compositor was last seen to have.
    std::optional<KdeProfileChoice> _present;
    bool _isOursPresent = false;
    bool _isHdr = false;
    /// Until theirs is, nothing is set: neither the note nor the compositor may lose their choice.
    bool _isTheirsKnown = false;
    KdeProfileChoice _theirs;
    /// The colours that the display says it has.
    Primaries _reported;
    KdeBase _base;
    /// What our note is known to say.
    std::optional<KdeProfileChoice> _noted;

    Wanted _wanted = Wanted::AsFound;
    HardwareRamp _ramp;
    /// Whether what is wanted has been sent, or given up for now.
    bool _isSent = true;
    /// Whether ours was sent and theirs has not replaced it since, as far as we know.
    bool _isOursSent = false;
    std::unique_ptr<KdeConfiguration> _underway;
    bool _isSecondTry = false;
    std::string _obstacle;
    /// How often it was put back since it was set.
    int _putBack = 0;

    bool _isHurried = false;
    RunLoop::Clock::time_point _earliest{};
    std::unique_ptr<RunLoop::Handle> _pause;
    std::unique_ptr<RunLoop::Handle> _retry;
};

}  // namespace tonquil
