// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "foundation/Problem.h"
#include "model/Primaries.h"
#include "platform/kde/KdeProfileChoice.h"
#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// What a display has without us: what our own profiles are made from.
struct KdeBase {
    /// The file's contents; where there is none, a profile of what the display counts as.
    std::vector<std::uint8_t> profile;
    HardwareRamp calibration;
};

/// The colour profiles that we give to the compositor, and notes of what the person had chosen
/// instead: a file each per display.
///
/// The compositor goes on using our profile, and keeps its path, when we are gone. The note is all
/// that is left of the person's choice then.
class KdeProfileFiles {
 public:
    /// Entries of the calibrations here: as many as a table has levels, so that none is changed on
    /// its way.
    static constexpr std::uint32_t rampSize = GammaTable::capacity;

    /// `folder` is made when it is needed.
    explicit KdeProfileFiles(std::filesystem::path folder) : _folder(std::move(folder)) {}

    /// Where the profile for a display is, or will be; `key` tells displays apart.
    [[nodiscard]] std::string pathFor(const std::string& key) const;
    /// Whether a profile is one of ours: by its place or, wherever it is, by its mark.
    [[nodiscard]] bool isOurs(const std::string& path) const;
    /// The person's choice that is noted for our profile at `path`. Nothing where the note is
    /// missing or damaged; a problem where it cannot be read now, such as for lack of file
    /// descriptors, but may be later.
    [[nodiscard]] Result<std::optional<KdeProfileChoice>> choiceUnder(
        const std::string& path) const;
    /// What a choice that is not ours means for a display that reports these primaries; a file that
    /// is no profile of a display means the same to the compositor as none.
    [[nodiscard]] static KdeBase base(const KdeProfileChoice& choice, const Primaries& reported);

    /// Notes a choice for our profile at `path`; it is on the disk when this returns.
    [[nodiscard]] Result<void> note(const std::string& path, const KdeProfileChoice& choice) const;
    /// Writes our profile at `path`: the base with `ramp`, of `rampSize` entries, as calibration.
    [[nodiscard]] static Result<void> write(const std::string& path, const KdeBase& base,
                                            const HardwareRamp& ramp);

 private:
    std::filesystem::path _folder;
};

}  // namespace tonquil
