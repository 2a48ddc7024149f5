// SPDX-License-Identifier: MIT
#pragma once

#include "app/curves/CurveRecovery.h"
#include "foundation/Log.h"
#include "platform/xdg/PropertyListFile.h"

namespace tonquil {

/// Keeps the curves in a property list, mode 0600.
///
/// One that is damaged is moved aside, counts as nothing left and has a line in the log. The
/// folder is made when something is kept.
class CurveRecoveryFile final : public CurveRecovery {
 public:
    CurveRecoveryFile(std::filesystem::path file, Log log);

    [[nodiscard]] PropertyValue leftCurves() override;
    [[nodiscard]] Result<void> keep(const PropertyValue& curves) override;
    void forget() override;

 private:
    void log(const std::string& line) const;

    PropertyListFile _file;
    Log _log;
};

}  // namespace tonquil
