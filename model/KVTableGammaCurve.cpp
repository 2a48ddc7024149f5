// SPDX-License-Identifier: MIT
#include "model/KVTableGammaCurve.h"

#include "model/CurveScreen.h"

namespace tonquil {

std::shared_ptr<KVTableGammaCurve> KVTableGammaCurve::tableGammaCurveWithData(
    std::span<const std::uint8_t> data) {
    if (data.size() < dataSize) {
        return nullptr;
    }
    GammaTable table;
    for (std::size_t i = 0; i < dataSize; ++i) {
        table.levels[i] = static_cast<float>(data[i]) / 256.0F;
    }
    return std::make_shared<KVTableGammaCurve>(table);
}

void KVTableGammaCurve::applyToScreen(CurveScreen& screen) const {
    screen.setTransferTable(_array);
}

void KVTableGammaCurve::retriveFromScreen(CurveScreen& screen) {
    // The number of slots filled does not matter: a shorter ramp leaves the rest unchanged.
    static_cast<void>(screen.getTransferTable(_array));
}

}  // namespace tonquil
