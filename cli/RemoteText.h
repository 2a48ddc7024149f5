// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/RemoteClient.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// The numbers of a curve as a compact JSON array, each in the shortest text for its float.
[[nodiscard]] std::string curveText(const std::vector<float>& curve);

/// One line: number, reference ID, "unique" or "local", content and curve, separated by tabs. Text
/// from the network is made printable.
[[nodiscard]] std::string screenLine(const AnnouncedScreen& screen);

/// An object with the keys "address", "name", "guid" and "screens", an array sorted by number.
[[nodiscard]] PropertyValue serverObject(const RemoteServer& server);

/// JSON in pure ASCII; `indent` in spaces, or -1 for one line.
[[nodiscard]] std::string jsonText(const PropertyValue& value, int indent);

}  // namespace tonquil
