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

/// Keeps the curves in a property list, mode 0600.
///
/// One that is damaged is moved aside, counts as nothing left and has a line in the log. The
/// folder is made when something is kept. Keeping outlives a crash of the program, which needs no
/// flushing of the disk; where it fails, it is reported and tried again every two seconds.
class CurveRecoveryFile final : public CurveRecovery {
 public:
    /// `runLoop` and `disk` must outlive it.
    CurveRecoveryFile(std::filesystem::path file, RunLoop& runLoop, DiskQueue& disk,
                      SaveReports reports);
    /// Waits for what is being kept.
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
    /// What is to be kept and has not gone to the disk yet.
    std::optional<PropertyValue> _wanted;
    bool _isKeeping = false;
    std::unique_ptr<RunLoop::Handle> _retry;
};

}  // namespace tonquil
