// SPDX-License-Identifier: MIT
#include "tests/support/IccBuilder.h"

#include <lcms2.h>

#include <cmath>

namespace tonquil {

namespace {

using Curves = std::array<cmsToneCurve*, 3>;

std::vector<std::uint8_t> profileWith(Curves curves) {
    cmsHPROFILE profile = cmsCreate_sRGBProfile();
    if (curves[0] != nullptr) {
        // Little CMS reads the tag as a pointer to three curves.
        cmsWriteTag(profile, cmsSigVcgtTag, static_cast<void*>(curves.data()));
        cmsFreeToneCurveTriple(curves.data());
    }
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    return bytes;
}

cmsToneCurve* tabulated(const std::vector<std::uint16_t>& entries) {
    return cmsBuildTabulatedToneCurve16(nullptr, static_cast<cmsUInt32Number>(entries.size()),
                                        entries.data());
}

// Little CMS writes the formula for a curve of its parametric type 5, (aX + b)^g + e above d,
// taking min from e and max from a^g + e.
cmsToneCurve* parametric(const VideoCardFormula& formula) {
    const double factor = std::pow(formula.max - formula.min, 1.0 / formula.gamma);
    const std::array<double, 7> parameters{formula.gamma, factor, 0, 0, 0, formula.min, 0};
    return cmsBuildParametricToneCurve(nullptr, 5, parameters.data());
}

}  // namespace

std::vector<std::uint8_t> buildIccWithTable(const Ramp& table) {
    return profileWith({tabulated(table.red), tabulated(table.green), tabulated(table.blue)});
}

std::vector<std::uint8_t> buildIccWithFormula(const std::array<VideoCardFormula, 3>& formula) {
    return profileWith({parametric(formula[0]), parametric(formula[1]), parametric(formula[2])});
}

std::vector<std::uint8_t> buildIccWithoutCalibration() {
    return profileWith({});
}

}  // namespace tonquil
