// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "model/GammaTable.h"
#include "model/SystemCalibration.h"
#include "model/TransferFormula.h"
#include "screens/DisplayIdentity.h"
#include "screens/Geometry.h"

namespace tonquil {

/// The phase of a reconfiguration callback: exactly `beginConfiguration` before a change, anything
/// else after it.
using ReconfigurationFlags = std::uint32_t;
inline constexpr ReconfigurationFlags beginConfiguration = 1;
inline constexpr ReconfigurationFlags endConfiguration = 2;
/// Beside `endConfiguration`, or alone when nothing else about the display has changed: its system
/// calibration, and so the table that is read, is another one.
inline constexpr ReconfigurationFlags calibrationChanged = 4;

/// The attached displays and their transfer tables.
///
/// A table is 256 levels of 0…1 per channel whatever the display's own ramp length; an
/// implementation resamples end to end, clamps, and treats NaN as 0.
///
/// The table that is *read* is the system calibration: from the display's colour profile if the
/// desktop publishes one, otherwise the last ramp that was there while no correction was held. It
/// is never a correction set through a service, in this process or an earlier one, and never a ramp
/// that another program wrote over a correction of this service before the service restored the
/// display.
///
/// Display ID 0 means the main display. Calls for a display that is gone, or that cannot be
/// corrected, do nothing and log it once.
class DisplayService : public SystemCalibration {
 public:
    /// Called on the main thread for each affected display: first for all of them with
    /// `beginConfiguration`, then for all with another flag. A service that only learns of changes
    /// afterwards makes both calls then. `calibrationChanged` may also come alone.
    using ReconfigurationCallback = std::function<void(DisplayID, ReconfigurationFlags)>;

    /// The destructor removes the callback.
    class Subscription {
     public:
        virtual ~Subscription() = default;
    };

    /// At most `most` displays that show a picture, the main display first.
    [[nodiscard]] virtual std::vector<DisplayID> onlineDisplays(std::size_t most) = 0;
    /// 0 when there is no display.
    [[nodiscard]] virtual DisplayID mainDisplay() = 0;
    /// All zeros for a display that is gone; the same for the bounds.
    [[nodiscard]] virtual DisplayIdentity identity(DisplayID display) = 0;
    [[nodiscard]] virtual DisplayDescription description(DisplayID display) = 0;
    /// In top-down desktop space, with the origin in the upper left corner.
    [[nodiscard]] virtual Rectangle bounds(DisplayID display) = 0;
    /// At most `most` displays whose bounds contain a point in top-down space.
    [[nodiscard]] std::vector<DisplayID> displaysWithPoint(const Point& point, std::size_t most);

    /// Takes effect at the end of the batch, or immediately outside a batch.
    virtual void setTransferTable(DisplayID display, const GammaTable& table) = 0;
    /// Fills the first slots of each channel with the system's table, leaves the others unchanged,
    /// and returns how many it filled: the smaller of 256 and the ramp length, 0 if there is none.
    [[nodiscard]] virtual std::uint32_t getTransferTable(DisplayID display, GammaTable& table) = 0;
    /// The same for the table now on the hardware, corrected or not; 0 if it cannot be read.
    [[nodiscard]] virtual std::uint32_t getHardwareTable(DisplayID display, GammaTable& table) = 0;
    void setTransferFormula(DisplayID display, const TransferFormula& formula);
    /// The power law closest to the system's table; a straight line if there is none.
    [[nodiscard]] TransferFormula getTransferFormula(DisplayID display);

    /// Restores the system calibration of the given displays, or a straight line if it is not
    /// known.
    virtual void restoreSystemCalibration(std::span<const DisplayID> displays) = 0;
    /// The same for every display.
    void restoreSystemCalibration() override;

    [[nodiscard]] virtual std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) = 0;
    /// Whether others can replace a table without the service noticing. Where they cannot, the
    /// curves need not be applied again and again.
    [[nodiscard]] virtual bool canBeDisturbed() const { return true; }
    /// Whether curves should be handed to a Tonquil that is running: it would undo what others set,
    /// or not notice it.
    [[nodiscard]] virtual bool isKeptByOneProgram() const { return false; }
    /// `lost` is called once, from the run loop, when the displays are out of reach for good. A
    /// service that was opened with such a callback may ignore this one.
    virtual void setWhenLost(const std::function<void()>& /*lost*/) {}
    /// Whether a correction takes the desktop's night light off its display.
    [[nodiscard]] virtual bool suspendsNightLight() const { return false; }
    /// Where it does: whether corrections have the night light's colour in them, as they do at
    /// first.
    virtual void setNightLightKept(bool /*isKept*/) {}
    /// Moves the pointer to a point of the top-down desktop space.
    virtual void warpPointer(const Point& point) = 0;

 protected:
    friend class DisplayBatch;

    /// Batches nest; only the outermost one calls this.
    virtual void beginBatch() = 0;
    /// Sends everything pending and returns whether every change since `beginBatch` reached its
    /// display.
    virtual bool endBatch() = 0;

 private:
    int _batchDepth = 0;
};

/// Groups the calls made during its lifetime: writes are sent together with a single wait, and
/// reads see one moment in time.
class DisplayBatch {
 public:
    explicit DisplayBatch(DisplayService& service);
    DisplayBatch(const DisplayBatch&) = delete;
    DisplayBatch& operator=(const DisplayBatch&) = delete;
    ~DisplayBatch() { static_cast<void>(finish()); }

    /// Ends the batch now. False if a change failed; the log says which. Inside another batch
    /// nothing has been sent yet, and it returns true.
    [[nodiscard]] bool finish();

 private:
    DisplayService* _service;
};

}  // namespace tonquil
