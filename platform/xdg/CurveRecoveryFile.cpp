// SPDX-License-Identifier: MIT
#include "platform/xdg/CurveRecoveryFile.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/folders/Folder.h"

namespace tonquil {

/// One write and its result.
struct CurveRecoveryFile::Job {
    PropertyListFile file;
    PropertyValue curves;
    Result<void> kept = {};
};

CurveRecoveryFile::CurveRecoveryFile(std::filesystem::path file, RunLoop& runLoop, DiskQueue& disk,
                                     SaveReports reports)
    : _file(std::move(file)),
      _runLoop(runLoop),
      _disk(disk),
      _log(reports.log),
      _keeping(std::move(reports)) {}

CurveRecoveryFile::~CurveRecoveryFile() {
    // The job's callback uses this object.
    _disk.finish();
}

PropertyValue CurveRecoveryFile::leftCurves() {
    PropertyListFile::Contents contents = _file.read();
    if (contents.state == PropertyListFile::State::Damaged) {
        const auto aside = _file.moveAside();
        log(aside ? contents.reason() + " It was kept as " + aside->native() + "."
                  : contents.reason() + " " + aside.error().sentence);
    } else if (contents.state == PropertyListFile::State::Unreadable) {
        log(contents.reason());
    }
    return std::move(contents.dictionary);
}

void CurveRecoveryFile::keep(PropertyValue curves) {
    _wanted = std::move(curves);
    startKeeping();
}

void CurveRecoveryFile::startKeeping() {
    _retry.reset();
    if (_isKeeping || !_wanted) {
        return;
    }
    _isKeeping = true;
    const auto job = std::make_shared<Job>(Job{_file, *std::exchange(_wanted, std::nullopt)});
    _disk.add(
        [job] {
            job->kept = makeFolder(job->file.path().parent_path()).and_then([&job] {
                return job->file.write(job->curves, /*isFlushed=*/false);
            });
        },
        [this, job] { endKeeping(*job); });
}

void CurveRecoveryFile::endKeeping(Job& job) {
    _isKeeping = false;
    if (job.kept) {
        _keeping.end();
        startKeeping();
        return;
    }
    constexpr std::chrono::seconds retryAfterFailure(2);
    _keeping.begin(job.kept.error());
    if (!_wanted) {
        _wanted = std::move(job.curves);
    }
    _retry = _runLoop.callOnce(retryAfterFailure, [this] { startKeeping(); });
}

void CurveRecoveryFile::forget() {
    _disk.finish();
    _wanted.reset();
    _retry.reset();
    _keeping.end();
    const std::filesystem::path& path = _file.path();
    // A killed process may also have left half of a newer file.
    std::string temporary = ".";
    temporary.append(path.filename().native()).append(".tonquil-new");
    for (const auto& file : {path.parent_path() / temporary, path}) {
        if (::unlink(file.c_str()) != 0 && errno != ENOENT && errno != ENOTDIR) {
            log(file.native() + " could not be removed: " + std::generic_category().message(errno) +
                ".");
        }
    }
}

void CurveRecoveryFile::log(const std::string& line) const {
    if (_log) {
        _log(line);
    }
}

}  // namespace tonquil
