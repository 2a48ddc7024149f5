// SPDX-License-Identifier: MIT
#include "settings/Settings.h"

#include <utility>

#include "files/BoundedFile.h"
#include "foundation/TranslatableText.h"
#include "plist/PropertyListReader.h"

namespace tonquil {

namespace {

bool isMultiDisplay(const PropertyValue& root) {
    const PropertyValue* format = entry(root, "Format");
    return format != nullptr && isNumber(*format) && integerValue(*format) == 1;
}

}  // namespace

Settings readSettings(std::vector<std::uint8_t> bytes) {
    if (!beginsLikePropertyList(bytes)) {
        return RawTableSettings{.bytes = std::move(bytes), .failedPropertyList = {}};
    }
    auto root = readPropertyList(bytes);
    if (!root) {
        return RawTableSettings{.bytes = std::move(bytes),
                                .failedPropertyList = std::move(root.error())};
    }
    if (!root->is_object()) {
        return RawTableSettings{
            .bytes = std::move(bytes),
            .failedPropertyList =
                Problem{TONQUIL_TEXT("Problem", "This property list holds no settings."), {}}};
    }
    if (!isMultiDisplay(*root)) {
        return SingleDisplaySettings{.curve = std::move(*root)};
    }
    const PropertyValue* screens = entry(*root, "Screens");
    return MultiDisplaySettings{
        .screens = screens != nullptr && screens->is_object() ? *screens : PropertyValue(nullptr)};
}

Result<Settings> readSettingsFile(const std::filesystem::path& path) {
    constexpr std::size_t mostBytes = std::size_t{1} << 20U;
    auto bytes = readBoundedFile(path, mostBytes);
    if (!bytes) {
        return tl::unexpected(std::move(bytes.error()));
    }
    return readSettings(std::move(*bytes));
}

}  // namespace tonquil
