// SPDX-License-Identifier: MIT
#include "platform/kde/KdeProfileFiles.h"

#include <span>
#include <system_error>

#include "colourfiles/IccReader.h"
#include "colourfiles/IccWriter.h"
#include "files/AtomicFile.h"
#include "files/BoundedFile.h"
#include "platform/edid/Edid.h"
#include "platform/folders/Folder.h"
#include "platform/icc/CalibrationRamp.h"
#include "platform/icc/CorrectionProfile.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "plist/Unicode.h"
#include "values/PropertyValue.h"

namespace tonquil {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view namePrefix = "kde-";
constexpr std::string_view profileSuffix = ".icc";
constexpr std::string_view noteSuffix = ".plist";

constexpr const char* pathKey = "ProfilePath";
constexpr const char* sourceKey = "ProfileSource";

fs::path noteFor(const std::string& path) {
    return fs::path(path).replace_extension(noteSuffix);
}

// A path is bytes, but nearly always a text that people may want to read in the note.
PropertyValue valueFromPath(const std::string& path) {
    return isPropertyListText(path)
               ? PropertyValue(path)
               : PropertyValue::binary(std::vector<std::uint8_t>(path.begin(), path.end()));
}

std::optional<std::string> pathFromValue(const PropertyValue* value) {
    if (value != nullptr && value->is_string()) {
        return value->get<std::string>();
    }
    if (value != nullptr && value->is_binary()) {
        const auto& bytes = value->get_binary();
        return std::string(bytes.begin(), bytes.end());
    }
    return std::nullopt;
}

}  // namespace

std::string KdeProfileFiles::pathFor(const std::string& key) const {
    std::string name(namePrefix);
    name.append(std::to_string(numberOf(key))).append(profileSuffix);
    return _folder / name;
}

bool KdeProfileFiles::isOurs(const std::string& path) const {
    const fs::path file(path);
    if (path.empty()) {
        return false;
    }
    if (file.parent_path() == _folder && file.extension() == profileSuffix &&
        file.filename().native().starts_with(namePrefix)) {
        return true;
    }
    const auto bytes = readBoundedFile(file, mostIccBytes);
    return bytes && isCorrectionProfile(*bytes);
}

Result<std::optional<KdeProfileChoice>> KdeProfileFiles::choiceUnder(
    const std::string& path) const {
    const fs::path note = noteFor(path);
    const auto beginning = readFileBeginning(note, PropertyListBudget{}.mostBytes);
    if (!beginning) {
        std::error_code error;
        const fs::file_status status = fs::status(note, error);
        if (fs::is_regular_file(status) || !fs::status_known(status)) {
            return tl::unexpected(beginning.error());
        }
        return std::nullopt;
    }
    const auto noted = readPropertyList(beginning->bytes);
    if (!beginning->isWhole || !noted) {
        return std::nullopt;
    }
    auto chosen = pathFromValue(entry(*noted, pathKey));
    const PropertyValue* source = entry(*noted, sourceKey);
    if (!chosen || source == nullptr || !source->is_number_unsigned() || isOurs(*chosen)) {
        return std::nullopt;
    }
    return KdeProfileChoice{.path = std::move(*chosen),
                            .source = static_cast<std::uint32_t>(integerValue(*source))};
}

KdeBase KdeProfileFiles::base(const KdeProfileChoice& choice, const Primaries& reported) {
    KdeBase base{.profile = {}, .calibration = HardwareRamp::straight(rampSize)};
    if (choice.source == KdeProfileChoice::file && !choice.path.empty()) {
        auto bytes = readBoundedFile(choice.path, mostIccBytes);
        if (bytes && correctionProfile(*bytes, base.calibration)) {
            base.calibration = calibrationRamp(*bytes, rampSize).value_or(base.calibration);
            base.profile = std::move(*bytes);
            return base;
        }
    }
    const bool isReported = choice.source == KdeProfileChoice::monitor;
    // The calibration is replaced in any case.
    base.profile =
        writeIcc({}, {.name = "Tonquil", .primaries = isReported ? reported : Primaries{}})
            .value_or(base.profile);
    return base;
}

Result<void> KdeProfileFiles::note(const std::string& path, const KdeProfileChoice& choice) const {
    const auto text = writePropertyList(
        PropertyValue::object({{pathKey, valueFromPath(choice.path)}, {sourceKey, choice.source}}));
    if (!text) {
        return tl::unexpected(text.error());
    }
    const std::vector<std::uint8_t> bytes(text->begin(), text->end());
    return makeFolder(_folder).and_then([&] { return writeFileAtomically(noteFor(path), bytes); });
}

Result<void> KdeProfileFiles::write(const std::string& path, const KdeBase& base,
                                    const HardwareRamp& ramp) {
    const auto bytes = correctionProfile(base.profile, ramp);
    if (!bytes) {
        return problem("The colour profile with the correction could not be made.");
    }
    // Written for each step of a slider; what a power failure takes of it, the next start writes.
    return writeFileAtomically(path, *bytes, {.isFlushed = false});
}

}  // namespace tonquil
