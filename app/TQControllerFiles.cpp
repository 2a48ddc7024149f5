// SPDX-License-Identifier: MIT
// Settings files.
#include <system_error>

#include "app/TQController.h"
#include "app/files/MultiDisplayFile.h"
#include "app/preferences/SettingsKeys.h"
#include "files/AtomicFile.h"
#include "foundation/TranslatableText.h"
#include "model/KVTableGammaCurve.h"
#include "plist/PropertyListWriter.h"
#include "settings/Settings.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

// Beside the sliders and what else the edit history tells apart.
constexpr int openedFileSubject = 102;

Result<void> writeSettings(const PropertyValue& contents, const std::filesystem::path& file) {
    const auto text = writePropertyList(contents);
    if (!text) {
        return tl::unexpected(text.error());
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): text is bytes.
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text->data());
    return writeFileAtomically(file, {bytes, text->size()}, AtomicFileOptions::document());
}

}  // namespace

void TQController::loadGamma() {
    _dialogs.chooseFileToOpen([this](const std::filesystem::path& file) { openFile(file); });
}

// After the event, so that whoever asked has an answer first.
void TQController::openFile(const std::filesystem::path& file) {
    _runLoop.post([this, file] { static_cast<void>(_openFile(file)); });
}

bool TQController::_openFile(const std::filesystem::path& file) {
    const auto settings = readSettingsFile(file);
    if (!settings) {
        return refuseFile(settings.error());
    }
    const DisplayBatch batch(_service);
    _history.endStep();
    const bool isOpened =
        std::visit([this](const auto& contents) { return openSettings(contents); }, *settings);
    _history.endStep();
    if (isOpened) {
        _recentFiles.add(file);
    }
    return isOpened;
}

bool TQController::refuseFile(const Problem& problem) {
    _dialogs.alert(TONQUIL_TEXT("Problem", "The file was not opened"), problem.sentence, {});
    return false;
}

bool TQController::openSettings(const SingleDisplaySettings& settings) {
    _currentCurve._setCurrentGammaCurve(
        *TQExtendedGammaCurve::gammaCurveWithDictionary(settings.curve));
    replaceCurves(openedFileSubject);
    _updateCurveInPanel();
    _openedFile = true;
    return true;
}

// What a file says of displays that are not here is kept for the day that they are.
bool TQController::openSettings(const MultiDisplaySettings& settings) {
    if (settings.screens.is_object()) {
        const MultiDisplayFile file(settings.screens);
        _storage.storeCurves(file.allScreensDictionary());
        _history.willEdit(_registry.sightedScreens(), openedFileSubject);
        if (file.applyTo(_registry) == 0) {
            _dialogs.alert(
                TONQUIL_TEXT("Problem", "No Matching Screens"),
                TONQUIL_TEXT("Problem",
                             "Settings from this file apply to different screens than those "
                             "available on this computer."),
                {});
            return false;
        }
        curvesWereEdited();
    }
    _updateCurveInPanel();
    _openedFile = true;
    return true;
}

// A table passes over the displays and is at once replaced by the curve that they are read back
// as; what it leaves is the way back.
bool TQController::openSettings(const RawTableSettings& settings) {
    const auto curve = KVTableGammaCurve::tableGammaCurveWithData(settings.bytes);
    if (settings.failedPropertyList) {
        return refuseFile(*settings.failedPropertyList);
    }
    if (!curve) {
        return refuseFile(
            {.sentence = TONQUIL_TEXT("Problem",
                                      "It holds neither settings nor a whole table of 768 bytes. "
                                      "Nothing has been changed."),
             .detail = {}});
    }
    _history.willEdit(_registry.screens(), openedFileSubject);
    for (const auto& screen : _currentScreens._currentScreens()) {
        screen->setGammaCurve(curve);
    }
    _adoptCurrentCurves();
    curvesWereEdited();
    return _openedFile;
}

void TQController::saveGamma() {
    const bool isMultiDisplay = _preferences.integerForKey(settingsKey::saveFormat) ==
                                static_cast<std::int64_t>(SettingsFormat::MultiDisplay);
    _dialogs.chooseFileToSave(
        isMultiDisplay ? SettingsFormat::MultiDisplay : SettingsFormat::SingleDisplay,
        [this](const std::filesystem::path& file, SettingsFormat format) {
            savePanelDidEnd(file, format);
        });
}

// A save that fails over an older file says nothing: that one is whole, and still there.
void TQController::savePanelDidEnd(const std::filesystem::path& file, SettingsFormat format) {
    _preferences.setValue(settingsKey::saveFormat, static_cast<std::int64_t>(format));
    const Result<void> saved = format == SettingsFormat::MultiDisplay
                                   ? writeSettings(MultiDisplayFile::contentsFor(_registry), file)
                                   : saveCurrentCurve(file);
    if (saved) {
        _recentFiles.add(file);
        return;
    }
    _log(saved.error().sentence);
    std::error_code unknown;
    if (!std::filesystem::exists(file, unknown)) {
        _dialogs.alert(TONQUIL_TEXT("Problem", "Saving failed"),
                       TONQUIL_TEXT("Problem", "Could not save settings at this location."), {});
    }
}

Result<void> TQController::saveCurrentCurve(const std::filesystem::path& file) {
    const auto screens = _currentScreens._currentScreens();
    if (screens.empty() || !screens.front()->gammaCurve()) {
        return problem("There is no display whose curve could be saved.");
    }
    return writeSettings(screens.front()->gammaCurve()->gammaCurveDictionary(), file);
}

}  // namespace tonquil
