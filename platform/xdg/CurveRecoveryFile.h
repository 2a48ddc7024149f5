// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/curves/CurveRecovery.h"
#include "files/DiskQueue.h"
#include "foundation/RunLoop.h"
#include "platform/xdg/PropertyListFile.h"
#include "platform/xdg/SaveReports.h"

namespace tonquil {

/// Stores the curves in a property list, mode 0600.
///
/// A damaged file is moved aside, counts as empty and is logged. The folder is created when
/// something is stored. The data survives a crash of the program, which does not need an fsync; a
/// failure is reported and retried every two seconds.
class CurveRecoveryFile final : public CurveRecovery {
 public:
    /// `runLoop` and `disk` must outlive it.
    CurveRecoveryFile(std::filesystem::path file, RunLoop& runLoop, DiskQueue& disk,
                      SaveReports reports);
    /// Waits for pending writes.
    ~CurveRecoveryFile() override;
    CurveRecoveryFile(const CurveRecoveryFile&) = delete;
    CurveRecoveryFile& operator=(const CurveRecoveryFile&) = delete;

    [[nodiscard]] PropertyValue leftCurves() override;
    void keep(PropertyValue curves) override;
    void forget() override;

 private:
    struct Job;

    void startKeeping();
    void endKeeping(Job& job);
    void log(const std::string& line) const;

    PropertyListFile _file;
    RunLoop& _runLoop;
    DiskQueue& _disk;
    Log _log;
    RepeatedProblem _keeping;
    /// Curves to store that have not been handed to the disk yet.
    std::optional<PropertyValue> _wanted;
    bool _isKeeping = false;
    std::unique_ptr<RunLoop::Handle> _retry;
};

}  // namespace tonquil
