// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "foundation/Log.h"
#include "foundation/Problem.h"

namespace tonquil {

/// Where a file of the program reports how its saves go.
struct SaveReports {
    Log log;
    /// Called with the problem when saving starts to fail, and with nothing when it works again.
    std::function<void(const std::optional<Problem>&)> showProblem = {};
};

/// Something that may fail repeatedly: logged once until it works again.
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
