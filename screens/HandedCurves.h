// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/Problem.h"
#include "model/KVGammaCurve.h"

namespace tonquil {

/// Curves that one of our programs hands to another that holds the displays, by connector.
using HandedCurves = std::map<std::string, std::shared_ptr<KVGammaCurve>>;

/// Whether each of them leaves its display as it is.
[[nodiscard]] bool areNeutral(const HandedCurves& curves);

/// Requests to the program that holds the displays: one line each, the first followed by curves.
inline constexpr std::string_view handedCurvesWord = "curves ";
inline constexpr std::string_view switchOffWord = "off";

/// One line of text, and back: JSON, with a curve in its compact form, or the bytes of a table, as
/// settings files hold them, in hexadecimal.
[[nodiscard]] std::string textFromHandedCurves(const HandedCurves& curves);
[[nodiscard]] Result<HandedCurves> handedCurvesFromText(std::string_view text);

}  // namespace tonquil
