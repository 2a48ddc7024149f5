// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <variant>

#include "cli/Arguments.h"
#include "foundation/Problem.h"
#include "model/KVGammaCurve.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// One curve for all selected displays.
using OneCurve = std::shared_ptr<KVGammaCurve>;
/// Curve dictionaries by reference ID.
struct CurvesByDisplay {
    PropertyValue screens;
};

/// Reads the curves given on the command line, by --curve or by a settings file of any kind.
///
/// Nothing is guessed: a damaged property list is never read as a raw table, and an unknown mode is
/// a problem.
[[nodiscard]] Result<std::variant<OneCurve, CurvesByDisplay>> readCurves(
    const Arguments& arguments);

/// The same where only one curve is wanted: of a file for several displays, --display says which.
[[nodiscard]] Result<OneCurve> readOneCurve(const Arguments& arguments);

}  // namespace tonquil
