// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include <string>
#include <utility>

#include "colourfiles/CalReader.h"
#include "colourfiles/IccReader.h"
#include "files/BoundedFile.h"
#include "foundation/TranslatableText.h"
#include "plist/PropertyListReader.h"

namespace tonquil {

namespace {

constexpr std::size_t mostDisplays = 256;

bool isMultiDisplay(const PropertyValue& root) {
    const PropertyValue* format = entry(root, "Format");
    return format != nullptr && isNumber(*format) && integerValue(*format) == 1;
}

Result<Settings> settingsFrom(Result<Calibration> calibration) {
    return std::move(calibration).map([](const Calibration& read) -> Settings {
        return CalibrationSettings{.table = tableOf(read)};
    });
}

}  // namespace

Result<Settings> readSettings(std::vector<std::uint8_t> bytes) {
    if (beginsLikeIcc(bytes)) {
        return settingsFrom(readIcc(bytes));
    }
    if (beginsLikeCal(bytes)) {
        return settingsFrom(readCal(bytes));
    }
    if (!beginsLikePropertyList(bytes)) {
        return RawTableSettings{.bytes = std::move(bytes)};
    }
    auto root = readPropertyList(bytes);
    if (!root) {
        return tl::unexpected(std::move(root.error()));
    }
    if (!root->is_object()) {
        return RawTableSettings{.bytes = std::move(bytes)};
    }
    if (!isMultiDisplay(*root)) {
        return SingleDisplaySettings{.curve = std::move(*root)};
    }
    const PropertyValue* screens = entry(*root, "Screens");
    if (screens == nullptr || !screens->is_object()) {
        return MultiDisplaySettings{.screens = nullptr};
    }
    // All of them would go into the preferences and be saved there from then on.
    if (screens->size() > mostDisplays) {
        return problemWith(
            TONQUIL_TEXT("Problem", "The file has curves for more than %@ displays."),
            {std::to_string(mostDisplays)});
    }
    return MultiDisplaySettings{.screens = *screens};
}

Result<Settings> readSettingsFile(const std::filesystem::path& path) {
    constexpr std::size_t mostBytes = std::size_t{1} << 20U;
    auto file = readFileBeginning(path, mostBytes);
    if (!file) {
        return tl::unexpected(std::move(file.error()));
    }
    if (!file->isWhole && beginsLikeIcc(file->bytes)) {
        return readBoundedFile(path, mostIccBytes).and_then([](const auto& profile) {
            return settingsFrom(readIcc(profile));
        });
    }
    if (!file->isWhole && (beginsLikePropertyList(file->bytes) || beginsLikeCal(file->bytes))) {
        return fileTooLarge(path, mostBytes);
    }
    return readSettings(std::move(file->bytes));
}

}  // namespace tonquil
