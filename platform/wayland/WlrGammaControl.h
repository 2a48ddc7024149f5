// SPDX-License-Identifier: MIT
#pragma once

#include <gamma-control-client.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/ramp/HardwareRamp.h"

namespace tonquil {

/// The gamma tables of one output, while the compositor lends them.
///
/// Only one client at a time can hold an output's control. What it sets stays as long as it holds
/// the control; then the compositor puts the output's own tables back.
class WlrGammaControl {
 public:
    static constexpr std::uint32_t smallestSize = 2;
    static constexpr std::uint32_t largestSize = 65536;

    enum class State : std::uint8_t {
        Released,    ///< Nobody asked for it, or it was given back.
        Asked,       ///< The compositor has not answered yet; some never do.
        Held,        ///< Ours.
        Failed,      ///< Taken by another client, or the output has no tables.
        Impossible,  ///< The compositor gave a size that no table can have.
        Missing,     ///< The output has no tables.
    };

    /// `changed` is called when the compositor answers or takes the control away.
    explicit WlrGammaControl(std::function<void()> changed) : _changed(std::move(changed)) {}
    WlrGammaControl(const WlrGammaControl&) = delete;
    WlrGammaControl& operator=(const WlrGammaControl&) = delete;
    ~WlrGammaControl() = default;

    /// Asks for a new control, giving back the one that there is.
    void ask(zwlr_gamma_control_manager_v1* manager, wl_output* output);
    /// Gives the control back, if there is one: the output gets its own tables.
    void release();
    /// Sends a ramp of `size` entries; only while held. False where there was no memory for it.
    [[nodiscard]] bool set(const HardwareRamp& ramp);

    [[nodiscard]] State state() const { return _state; }
    /// Whether a ramp was set on the control that is held.
    [[nodiscard]] bool isInUse() const { return _isInUse; }
    /// Whether asking again later may help.
    [[nodiscard]] bool isWorthAnotherTry() const {
        return isTaken() || _state == State::Impossible;
    }
    /// Entries of a channel as the compositor said last, also once released; 0 before that.
    [[nodiscard]] std::uint32_t size() const { return _size; }
    /// Whether it is not lent to us, as far as can be told because another program has it.
    [[nodiscard]] bool isTaken() const { return _state == State::Asked || _state == State::Failed; }
    /// Why nothing can be set, as a sentence; empty where it can.
    [[nodiscard]] std::string obstacle() const;

 private:
    struct Events;
    struct Destroy {
        void operator()(zwlr_gamma_control_v1* control) const {
            zwlr_gamma_control_v1_destroy(control);
        }
    };
    void answered(std::uint32_t size);
    /// Drops a control that is of no use any more.
    void drop(State reason);

    std::function<void()> _changed;
    std::unique_ptr<zwlr_gamma_control_v1, Destroy> _control;
    State _state = State::Released;
    std::uint32_t _size = 0;
    bool _isInUse = false;
};

}  // namespace tonquil
