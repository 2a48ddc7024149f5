// SPDX-License-Identifier: MIT
#include "tests/support/IccBuilder.h"

#include <lcms2.h>

#include <cmath>
#include <memory>

namespace tonquil {

namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Profile = std::unique_ptr<void, CloseProfile>;
using Curve = std::unique_ptr<cmsToneCurve, FreeCurve>;

std::vector<std::uint8_t> bytesOf(const Profile& profile) {
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    cmsSaveProfileToMem(profile.get(), bytes.data(), &size);
    return bytes;
}

std::vector<std::uint8_t> withCalibration(const Curve& red, const Curve& green, const Curve& blue) {
    const Profile profile(cmsCreate_sRGBProfile());
    std::array<cmsToneCurve*, 3> channels{red.get(), green.get(), blue.get()};
    // Little CMS reads the tag as a pointer to three curves.
    cmsWriteTag(profile.get(), cmsSigVcgtTag, static_cast<void*>(channels.data()));
    return bytesOf(profile);
}

Curve tabulated(const std::vector<std::uint16_t>& entries) {
    return Curve(cmsBuildTabulatedToneCurve16(nullptr, static_cast<cmsUInt32Number>(entries.size()),
                                              entries.data()));
}

// Little CMS writes the formula for a curve of its parametric type 5, (aX + b)^g + e above d,
// taking min from e and max from a^g + e.
Curve parametric(const VideoCardFormula& formula) {
    const std::array<cmsFloat64Number, 7> parameters{
        formula.gamma,
        std::pow(formula.max - formula.min, 1.0 / formula.gamma),
        0,
        0,
        0,
        formula.min,
        0};
    return Curve(cmsBuildParametricToneCurve(nullptr, 5, parameters.data()));
}

}  // namespace

std::vector<std::uint8_t> buildIccWithTable(const Ramp& table) {
    return withCalibration(tabulated(table.red), tabulated(table.green), tabulated(table.blue));
}

std::vector<std::uint8_t> buildIccWithFormula(const std::array<VideoCardFormula, 3>& formula) {
    return withCalibration(parametric(formula[0]), parametric(formula[1]), parametric(formula[2]));
}

std::vector<std::uint8_t> buildIccWithoutCalibration() {
    return bytesOf(Profile(cmsCreate_sRGBProfile()));
}

}  // namespace tonquil
