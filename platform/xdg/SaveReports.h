// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "foundation/Log.h"
#include "foundation/Problem.h"

namespace tonquil {

/// Whom a file of the program's own tells how its saves go.
struct SaveReports {
    Log log;
    /// Called with the problem when saving begins to fail, and with nothing when it works again.
    std::function<void(const std::optional<Problem>&)> showProblem = {};
};

/// Something that fails again and again: has one line in the log until it works.
class RepeatedProblem {
 public:
    explicit RepeatedProblem(SaveReports reports) : _reports(std::move(reports)) {}

    void begin(const Problem& problem) {
        if (!_isKnown && _reports.log) {
            _reports.log(problem.sentence);
        }
        if (!_isKnown && _reports.showProblem) {
            _reports.showProblem(problem);
        }
        _isKnown = true;
    }
    void end() {
        if (_isKnown && _reports.showProblem) {
            _reports.showProblem(std::nullopt);
        }
        _isKnown = false;
    }

 private:
    SaveReports _reports;
    bool _isKnown = false;
};

}  // namespace tonquil
