// SPDX-License-Identifier: MIT
#include "program/Groundwork.h"

#include <utility>

#include "app/StoredCorrection.h"
#include "platform/choice/DisplayServiceChoice.h"
#include "platform/missing/MissingDisplayService.h"
#include "platform/posix/InstanceName.h"
#include "program/ProgramEnvironment.h"

namespace tonquil {

Groundwork::Groundwork(XdgFolders folders, RunLoop& runLoop)
    : _folders(std::move(folders)),
      _runLoop(runLoop),
      _disk(_runLoop),
      _saveProblems(logLine),
      _preferences(_folders.config() / "preferences.plist", _runLoop, _disk,
                   _saveProblems.preferencesReports()),
      _recovery(_folders.state() / ("recovery-" + instanceName() + ".plist"), _runLoop, _disk,
                _saveProblems.recoveryReports()) {
    auto opened = chooseDisplayService(&_runLoop, logLine, [this] {
        if (_displaysLost) {
            _displaysLost();
        }
    });
    if (opened) {
        _displays = std::move(*opened);
    } else {
        report(opened.error());
        _whyNoDisplays = opened.error().sentence;
        _displays = std::make_unique<MissingDisplayService>();
    }
    _registry = std::make_unique<ScreenRegistry>(*_displays);
}

void Groundwork::applyStoredCurves() {
    tonquil::applyStoredCurves(*_registry, *_displays, _preferences, _recovery, _installedPrograms);
}

}  // namespace tonquil
