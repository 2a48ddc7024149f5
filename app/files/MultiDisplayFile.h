// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>

#include "model/TQExtendedGammaCurve.h"
#include "screens/ScreenRegistry.h"
#include "values/PropertyValue.h"

namespace tonquil {

/// The curves of several displays, as a settings file holds them.
class MultiDisplayFile {
 public:
    /// Reads the file's "Screens": what is no dictionary in it, or has a key that is no text, is
    /// passed over.
    explicit MultiDisplayFile(const PropertyValue& screens);

    /// The curves as an all-screens dictionary, in the form that is written today.
    [[nodiscard]] PropertyValue allScreensDictionary() const;
    /// Gives each sighted screen its curve, by its reference ID or its old one, and puts it on the
    /// display. Returns how many of those screens are attached.
    [[nodiscard]] std::size_t applyTo(ScreenRegistry& registry) const;

    /// What a file of the attached displays' curves holds. Each curve stands there under both of
    /// its display's reference IDs, so that older programs find it too.
    [[nodiscard]] static PropertyValue contentsFor(ScreenRegistry& registry);

 private:
    std::map<std::string, std::shared_ptr<TQExtendedGammaCurve>> _curves;
};

}  // namespace tonquil
