// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "platform/xdg/SaveReports.h"

namespace tonquil {

/// What keeps preferences and curves from being saved, for the panel to show. Saving begins before
/// there is a panel, and ends after it is destroyed.
class SaveProblems {
 public:
    using Show = std::function<void(const std::optional<Problem>&)>;

    explicit SaveProblems(Log log) : _log(std::move(log)) {}
    SaveProblems(const SaveProblems&) = delete;
    SaveProblems& operator=(const SaveProblems&) = delete;

    [[nodiscard]] SaveReports preferencesReports() { return reportsTo(_preferences); }
    [[nodiscard]] SaveReports recoveryReports() { return reportsTo(_recovery); }

    /// Shows the current problem and every later change; null ends that.
    void setShow(Show show) {
        _show = std::move(show);
        tell();
    }

 private:
    [[nodiscard]] SaveReports reportsTo(std::optional<Problem>& latest) {
        return {.log = _log, .showProblem = [this, &latest](const std::optional<Problem>& problem) {
                    latest = problem;
                    tell();
                }};
    }
    void tell() {
        if (_show) {
            _show(_preferences ? _preferences : _recovery);
        }
    }

    Log _log;
    Show _show;
    std::optional<Problem> _preferences;
    std::optional<Problem> _recovery;
};

}  // namespace tonquil
