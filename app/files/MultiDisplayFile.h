// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "model/KVGammaCurve.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// The curves of several displays, as in a settings file.
class MultiDisplayFile {
 public:
    /// Reads the file's "Screens". Entries that are not dictionaries, or whose key a property list
    /// cannot hold, are skipped.
    explicit MultiDisplayFile(const PropertyValue& screens);

    /// The curves as an all-screens dictionary, in the current format.
    [[nodiscard]] PropertyValue allScreensDictionary() const;
    /// The sighted screens that it has curves for.
    [[nodiscard]] ScreenRegistry::Screens matchingScreens(ScreenRegistry& registry) const;
    /// Assigns and applies to each of the matching screens its curve.
    void applyTo(const ScreenRegistry::Screens& matching) const;

    /// Builds the contents of a file with the curves of the attached displays. Each curve is stored
    /// under its display's reference ID and its old-style ID, so that older programs find it too.
    /// Those of twins are also stored under their twin reference IDs, so that each twin gets its
    /// own curve back.
    [[nodiscard]] static PropertyValue contentsFor(ScreenRegistry& registry);

 private:
    /// Found by the first of the screen's keys that the file has; null without one.
    [[nodiscard]] std::shared_ptr<KVGammaCurve> curveFor(const KVScreen& screen) const;

    std::map<std::string, std::shared_ptr<KVGammaCurve>> _curves;
};

}  // namespace tonquil
