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

/// Tells what a call of a reconfiguration callback is about: exactly `beginConfiguration` before a
/// change, anything else after it.
using ReconfigurationFlags = std::uint32_t;
inline constexpr ReconfigurationFlags beginConfiguration = 1;
inline constexpr ReconfigurationFlags endConfiguration = 2;

/// The attached displays and their transfer tables.
///
/// A table is 256 levels of 0…1 per channel whatever the display's own ramp length; an
/// implementation resamples end to end, clamps, and takes a not-a-number for 0. The table that is
/// *read* is the system calibration: that of the display's colour profile where the desktop
/// publishes one, otherwise the last ramp that was there while no correction was held. It is never
/// a correction that was set through a service, in this process or an earlier one, and never a ramp
/// with which somebody else replaced a correction that this service set and has not taken back.
/// Display ID 0 means the main display. Calls for a display that is gone, or that cannot be
/// corrected, do nothing; the log says so once.
class DisplayService : public SystemCalibration {
 public:
    /// Called on the main thread with each affected display, first for all of them with
    /// `beginConfiguration`, then for all with another flag. A service that learns of changes only
    /// afterwards makes both calls then.
    using ReconfigurationCallback = std::function<void(DisplayID, ReconfigurationFlags)>;

    /// Destroying it removes the callback.
    class Subscription {
     public:
        virtual ~Subscription() = default;
    };

    /// At most `most` displays that show something, the main display first.
    [[nodiscard]] virtual std::vector<DisplayID> onlineDisplays(std::size_t most) = 0;
    /// 0 when there is no display.
    [[nodiscard]] virtual DisplayID mainDisplay() = 0;
    /// All zeros for a display that is gone; so are the bounds.
    [[nodiscard]] virtual DisplayIdentity identity(DisplayID display) = 0;
    [[nodiscard]] virtual DisplayDescription description(DisplayID display) = 0;
    /// In the top-down desktop space: the origin is its upper left corner.
    [[nodiscard]] virtual Rectangle bounds(DisplayID display) = 0;
    /// At most `most` displays whose bounds contain a point of the top-down space.
    [[nodiscard]] std::vector<DisplayID> displaysWithPoint(const Point& point, std::size_t most);

    /// Takes effect at the end of the batch, and so at once outside of one.
    virtual void setTransferTable(DisplayID display, const GammaTable& table) = 0;
    /// Fills the first slots of each channel with the system's table, leaves the others, and
    /// returns how many it filled: the lesser of 256 and the ramp's length, 0 when there is none.
    [[nodiscard]] virtual std::uint32_t getTransferTable(DisplayID display, GammaTable& table) = 0;
    /// The same for what is on the hardware now, corrected or not; 0 where that cannot be known.
    [[nodiscard]] virtual std::uint32_t getHardwareTable(DisplayID display, GammaTable& table) = 0;
    void setTransferFormula(DisplayID display, const TransferFormula& formula);
    /// The power law that comes nearest to the system's table; a straight line where there is none.
    [[nodiscard]] TransferFormula getTransferFormula(DisplayID display);

    /// Puts the given displays back to the system calibration, or to a straight line where that is
    /// not known.
    virtual void restoreSystemCalibration(std::span<const DisplayID> displays) = 0;
    /// The same for every display.
    void restoreSystemCalibration() override;

    [[nodiscard]] virtual std::unique_ptr<Subscription> registerReconfigurationCallback(
        ReconfigurationCallback callback) = 0;
    /// Whether others can replace a table without the service's hearing of it. Where they cannot,
    /// there is nothing to put right again and again.
    [[nodiscard]] virtual bool canBeDisturbed() const { return true; }
    /// Moves the pointer to a point of the top-down desktop space.
    virtual void warpPointer(const Point& point) = 0;

 protected:
    friend class DisplayBatch;

    /// Batches nest; only the outermost begins and ends here.
    virtual void beginBatch() = 0;
    /// Carries out what is pending and returns whether all that was set since `beginBatch`
    /// reached its display.
    virtual bool endBatch() = 0;

 private:
    int _batchDepth = 0;
};

/// Joins the calls made during its life: what is set goes out together and is waited for once, and
/// what is read is read at one moment.
class DisplayBatch {
 public:
    explicit DisplayBatch(DisplayService& service);
    DisplayBatch(const DisplayBatch&) = delete;
    DisplayBatch& operator=(const DisplayBatch&) = delete;
    ~DisplayBatch() { static_cast<void>(finish()); }

    /// Ends the batch now. False when something could not be set; the log says what. While another
    /// batch is open nothing has been sent yet, and the answer is true.
    [[nodiscard]] bool finish();

 private:
    DisplayService* _service;
};

}  // namespace tonquil
