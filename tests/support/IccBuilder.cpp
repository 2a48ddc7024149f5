// SPDX-License-Identifier: MIT
#include "tests/support/IccBuilder.h"

#include <lcms2.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

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

// A profile that cannot be made is a fault of the test, which cannot go on.
void require(bool condition, std::string_view what) {
    if (!condition) {
        std::fprintf(stderr, "Little CMS failed: %.*s\n", static_cast<int>(what.size()),
                     what.data());
        std::abort();
    }
}

Profile displayProfile() {
    Profile profile(cmsCreate_sRGBProfile());
    require(profile != nullptr, "no profile");
    return profile;
}

std::vector<std::uint8_t> bytesOf(const Profile& profile) {
    cmsUInt32Number size = 0;
    require(cmsSaveProfileToMem(profile.get(), nullptr, &size) != 0, "no size");
    std::vector<std::uint8_t> bytes(size);
    require(cmsSaveProfileToMem(profile.get(), bytes.data(), &size) != 0, "no bytes");
    return bytes;
}

std::vector<std::uint8_t> withCalibration(const std::array<Curve, 3>& curves) {
    const Profile profile = displayProfile();
    std::array<cmsToneCurve*, 3> channels{};
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        require(curves.at(channel) != nullptr, "no curve");
        channels.at(channel) = curves.at(channel).get();
    }
    // Little CMS reads the tag as a pointer to three curves.
    require(cmsWriteTag(profile.get(), cmsSigVcgtTag, static_cast<void*>(channels.data())) != 0,
            "no vcgt tag");
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
    return withCalibration({tabulated(table.red), tabulated(table.green), tabulated(table.blue)});
}

std::vector<std::uint8_t> buildIccWithFormula(const std::array<VideoCardFormula, 3>& formula) {
    return withCalibration(
        {parametric(formula[0]), parametric(formula[1]), parametric(formula[2])});
}

std::vector<std::uint8_t> buildIccWithoutCalibration() {
    return bytesOf(displayProfile());
}

}  // namespace tonquil
