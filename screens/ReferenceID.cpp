// SPDX-License-Identifier: MIT
#include "screens/ReferenceID.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tonquil {

namespace {

std::string sixDecimals(double value) {
    // Unlike printf, independent of the locale. The buffer holds the longest double in this form.
    std::array<char, 330> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), std::isfinite(value) ? value : 0.0,
                      std::chars_format::fixed, 6);
    return {text.data(), end};
}

}  // namespace

ReferenceID referenceIDFor(const DisplayIdentity& identity) {
    const std::string kind =
        std::to_string(identity.modelNumber) + "-" + std::to_string(identity.vendorNumber);
    // Wraps around, so it is false for both 0 and 4294967295.
    if (identity.serialNumber + 1U > 1U) {
        return {std::to_string(identity.serialNumber) + "-" + kind, false};
    }
    if (identity.isBuiltIn) {
        return {"builtin-" + kind, true};
    }
    return {sixDecimals(identity.widthInMillimetres) + "x" +
                sixDecimals(identity.heightInMillimetres) + "-" + kind,
            true};
}

std::string twinReferenceIDFor(const std::string& referenceID, const std::string& connector) {
    return referenceID + "@" + connector;
}

}  // namespace tonquil
