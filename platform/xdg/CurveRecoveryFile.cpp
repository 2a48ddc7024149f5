// SPDX-License-Identifier: MIT
#include "platform/xdg/CurveRecoveryFile.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/xdg/Folder.h"

namespace tonquil {

CurveRecoveryFile::CurveRecoveryFile(std::filesystem::path file, Log log)
    : _file(std::move(file)), _log(std::move(log)) {}

PropertyValue CurveRecoveryFile::leftCurves() {
    PropertyListFile::Contents contents = _file.read();
    if (contents.state == PropertyListFile::State::Damaged) {
        const auto aside = _file.moveAside();
        log(aside ? contents.reason + " It was kept as " + aside->native() + "."
                  : contents.reason + " " + aside.error().sentence);
    } else if (contents.state == PropertyListFile::State::Unreadable) {
        log(contents.reason);
    }
    return std::move(contents.dictionary);
}

Result<void> CurveRecoveryFile::keep(const PropertyValue& curves) {
    if (!curves.is_object()) {
        return problem("What is kept for recovery must be a dictionary.");
    }
    return makeFolder(_file.path().parent_path()).and_then([&] { return _file.write(curves); });
}

void CurveRecoveryFile::forget() {
    const std::filesystem::path& path = _file.path();
    // A kill may have left the half of a newer one as well.
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
