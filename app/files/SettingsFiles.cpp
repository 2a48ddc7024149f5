// SPDX-License-Identifier: MIT
#include "app/files/SettingsFiles.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <memory>
#include <system_error>

#include "app/files/MultiDisplayFile.h"
#include "app/preferences/SettingsKeys.h"
#include "colourfiles/ExportedTable.h"
#include "files/AtomicFile.h"
#include "foundation/TranslatableText.h"
#include "model/KVTableGammaCurve.h"
#include "model/StoredCurve.h"
#include "plist/PropertyListWriter.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

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

void SettingsFiles::loadGamma() {
    _with.dialogs.chooseFileToOpen([this](const std::filesystem::path& file) { openFile(file); });
}

// Deferred to after the event, so that the caller returns first.
void SettingsFiles::openFile(const std::filesystem::path& file) {
    _with.runLoop.post([this, file] {
        if (_openFile(file)) {
            _recentFiles.add(file);
        }
    });
}

void SettingsFiles::openPreset(const std::filesystem::path& file) {
    _with.runLoop.post([this, file] { static_cast<void>(_openFile(file)); });
}

bool SettingsFiles::_openFile(const std::filesystem::path& file) {
    const auto settings = readSettingsFile(file);
    if (!settings) {
        return refuseFile(settings.error());
    }
    const DisplayBatch batch(_with.service);
    return std::visit([this](const auto& contents) { return openSettings(contents); }, *settings);
}

bool SettingsFiles::refuseFile(const Problem& problem) {
    _with.log(problem.sentence);
    _with.dialogs.alert(TONQUIL_TEXT("Problem", "The file was not opened"), problem.key(),
                        problem.arguments);
    return false;
}

bool SettingsFiles::openSettings(const SingleDisplaySettings& settings) {
    const auto curve = curveWithDictionary(settings.curve);
    if (const auto table = std::dynamic_pointer_cast<KVTableGammaCurve>(curve)) {
        _with.editing.keepTable(table);
    } else {
        _with.editing.adoptCurve(*curve);
    }
    return true;
}

bool SettingsFiles::openSettings(const CalibrationSettings& settings) {
    _with.editing.keepTable(std::make_shared<KVTableGammaCurve>(settings.table));
    return true;
}

// Curves for displays that are not attached are kept until they are.
bool SettingsFiles::openSettings(const MultiDisplaySettings& settings) {
    if (settings.screens.is_object()) {
        const MultiDisplayFile file(settings.screens);
        const PropertyValue curves = file.allScreensDictionary();
        if (!_with.storage.hasRoomFor(curves)) {
            return refuseFile({.sentence = TONQUIL_TEXT("Problem",
                                                        "There is no room for the curves of so "
                                                        "many more displays."),
                               .detail = {}});
        }
        const auto& attached = _with.registry.screens();
        const auto matching = file.matchingScreens(_with.registry);
        if (!matching.empty()) {
            _with.editing.willEdit(matching, editSubject::openedFile);
            file.applyTo(matching);
        }
        _with.storage.storeCurves(curves);
        if (std::ranges::find_first_of(matching, attached) == matching.end()) {
            _with.dialogs.alert(
                TONQUIL_TEXT("Problem", "No Matching Screens"),
                TONQUIL_TEXT("Problem",
                             "Settings from this file apply to different screens than those "
                             "available on this computer."),
                {});
            return false;
        }
        _with.editing.curvesWereEdited();
    }
    _with.view._updateCurveInPanel();
    return true;
}

bool SettingsFiles::openSettings(const RawTableSettings& settings) {
    const auto curve = KVTableGammaCurve::tableGammaCurveWithData(settings.bytes);
    if (!curve) {
        return refuseFile(
            {.sentence = TONQUIL_TEXT("Problem",
                                      "It holds neither settings nor a whole table of 768 bytes. "
                                      "Nothing has been changed."),
             .detail = {}});
    }
    _with.editing.adoptTable(curve);
    return true;
}

void SettingsFiles::saveGamma() {
    const std::int64_t stored = _with.preferences.integerForKey(settingsKey::saveFormat);
    const bool isKnown = stored >= 0 && stored <= static_cast<std::int64_t>(SettingsFormat::Cal);
    _with.dialogs.chooseFileToSave(
        isKnown ? static_cast<SettingsFormat>(stored) : SettingsFormat::SingleDisplay,
        [this](const std::filesystem::path& file, SettingsFormat format) {
            savePanelDidEnd(file, format);
        });
}

// A failed save over an existing file shows no alert: the old file is unchanged.
void SettingsFiles::savePanelDidEnd(const std::filesystem::path& file, SettingsFormat format) {
    _with.preferences.setValue(settingsKey::saveFormat, static_cast<std::int64_t>(format));
    const bool isSettings =
        format == SettingsFormat::SingleDisplay || format == SettingsFormat::MultiDisplay;
    const Result<void> saved = isSettings ? saveSettings(file, format) : exportTable(file, format);
    if (saved) {
        _recentFiles.add(file);
        return;
    }
    _with.log(saved.error().sentence);
    std::error_code unknown;
    if (!std::filesystem::exists(file, unknown)) {
        _with.dialogs.alert(TONQUIL_TEXT("Problem", "Saving failed"),
                            TONQUIL_TEXT("Problem", "Could not save settings at this location."),
                            {});
    }
}

Result<void> SettingsFiles::saveSettings(const std::filesystem::path& file, SettingsFormat format) {
    return format == SettingsFormat::MultiDisplay
               ? writeSettings(MultiDisplayFile::contentsFor(_with.registry), file)
               : saveCurrentCurve(file);
}

// The table as the plot shows it: what the display has while the correction is on.
Result<void> SettingsFiles::exportTable(const std::filesystem::path& file, SettingsFormat format) {
    const auto screens = _with.currentScreens._currentScreens();
    const auto curves = _with.view.plottedCurves();
    if (screens.empty() || !curves) {
        return problem(TONQUIL_TEXT("Problem", "There is no display whose curve could be saved."));
    }
    const DisplayDescription description =
        _with.service.description(screens.front()->directDisplayID());
    return exportedTable(format == SettingsFormat::Icc ? ExportFormat::Icc : ExportFormat::Cal,
                         curves->result, curves->sampleCount,
                         {.name = description.name(),
                          .primaries = description.primaries.value_or(Primaries{}),
                          .time = std::time(nullptr)})
        .and_then([&](const auto& bytes) {
            return writeFileAtomically(file, bytes, AtomicFileOptions::document());
        });
}

void SettingsFiles::makeEditable() {
    const auto largest = _with.editing.makeEditable();
    if (!largest) {
        return;
    }
    std::array<char, 32> percent{};
    static_cast<void>(
        std::snprintf(percent.data(), percent.size(), "%.2f", static_cast<double>(*largest) * 100));
    _with.dialogs.alert(
        TONQUIL_TEXT("Problem", "The table can be edited now"),
        TONQUIL_TEXT("Problem",
                     "A curve has taken its place that differs from it by %@ % of full level at "
                     "most. Undo brings the table back."),
        {percent.data()});
}

Result<void> SettingsFiles::saveCurrentCurve(const std::filesystem::path& file) {
    const auto screens = _with.currentScreens._currentScreens();
    if (screens.empty() || !screens.front()->gammaCurve()) {
        return problem(TONQUIL_TEXT("Problem", "There is no display whose curve could be saved."));
    }
    return writeSettings(screens.front()->gammaCurve()->gammaCurveDictionary(), file);
}

}  // namespace tonquil
