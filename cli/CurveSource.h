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

/// One curve for whatever displays are meant.
using OneCurve = std::shared_ptr<KVGammaCurve>;
/// Curve dictionaries by reference ID.
struct CurvesByDisplay {
    PropertyValue screens;
};

/// The curves that a command line names, by --curve or by a settings file of any kind.
///
/// Nothing is guessed: a damaged property list is never taken for a raw table, and a mode that
/// does not exist is a problem.
[[nodiscard]] Result<std::variant<OneCurve, CurvesByDisplay>> readCurves(
    const Arguments& arguments);

}  // namespace tonquil
