// SPDX-License-Identifier: MIT
#include "platform/wayland/WlrGammaControl.h"

#include "foundation/TranslatableText.h"
#include "platform/wayland/RampMemory.h"

namespace tonquil {

struct WlrGammaControl::Events {
    static void gammaSize(void* data, zwlr_gamma_control_v1*, std::uint32_t size) {
        static_cast<WlrGammaControl*>(data)->answered(size);
    }
    static void failed(void* data, zwlr_gamma_control_v1*) {
        static_cast<WlrGammaControl*>(data)->drop(State::Failed);
    }
    static constexpr zwlr_gamma_control_v1_listener all{.gamma_size = gammaSize, .failed = failed};
};

void WlrGammaControl::ask(zwlr_gamma_control_manager_v1* manager, wl_output* output) {
    release();
    _control.reset(zwlr_gamma_control_manager_v1_get_gamma_control(manager, output));
    zwlr_gamma_control_v1_add_listener(_control.get(), &Events::all, this);
    _state = State::Asked;
}

void WlrGammaControl::release() {
    _control.reset();
    _isInUse = false;
    if (_state == State::Held || _state == State::Asked) {
        _state = State::Released;
    }
}

void WlrGammaControl::answered(std::uint32_t size) {
    if (size == 0) {
        drop(State::Missing);
    } else if (size < smallestSize || size > largestSize) {
        drop(State::Impossible);
    } else {
        _size = size;
        _state = State::Held;
        _changed();
    }
}

void WlrGammaControl::drop(State reason) {
    _control.reset();
    _isInUse = false;
    _state = reason;
    _changed();
}

bool WlrGammaControl::set(const HardwareRamp& ramp) {
    // A table of another length would end the connection.
    if (_state != State::Held || ramp.size() != _size) {
        return false;
    }
    const RampMemory memory(ramp);
    if (memory.descriptor() < 0) {
        return false;
    }
    zwlr_gamma_control_v1_set_gamma(_control.get(), memory.descriptor());
    _isInUse = true;
    return true;
}

std::string WlrGammaControl::obstacle() const {
    switch (_state) {
        case State::Missing:
            return TONQUIL_TEXT("Problem", "This display has no gamma ramp.");
        case State::Impossible:
            return TONQUIL_TEXT("Problem",
                                "The compositor gives an impossible size for this display's gamma "
                                "ramp.");
        case State::Asked:
        case State::Failed:
            return TONQUIL_TEXT("Problem",
                                "Another program, such as a night light, holds this display's "
                                "gamma ramp, or it has none.");
        default:
            return {};
    }
}

}  // namespace tonquil
