// SPDX-License-Identifier: MIT
#include "settings/PresetFolder.h"

#include <algorithm>
#include <map>
#include <system_error>

#include "foundation/TranslatableText.h"
#include "model/KVTableGammaCurve.h"
#include "settings/Settings.h"

namespace tonquil {

namespace {

std::string inSmallLetters(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

std::optional<Problem> problemOf(const std::filesystem::path& file) {
    const auto settings = readSettingsFile(file);
    if (!settings) {
        return settings.error();
    }
    const auto* raw = std::get_if<RawTableSettings>(&*settings);
    if (raw != nullptr && raw->bytes.size() < KVTableGammaCurve::dataSize) {
        return Problem{.sentence = TONQUIL_TEXT("Problem", "It holds no settings."), .detail = {}};
    }
    return std::nullopt;
}

}  // namespace

std::vector<Preset> PresetFolder::list() const {
    std::vector<Preset> presets;
    std::error_code none;
    std::filesystem::directory_iterator each(_folder, none);
    for (; !none && each != std::filesystem::directory_iterator(); each.increment(none)) {
        const std::string name = each->path().filename().string();
        std::error_code unknown;
        if (!name.starts_with('.') && each->is_regular_file(unknown)) {
            presets.push_back({.name = name, .file = each->path(), .problem = {}});
        }
    }
    std::map<std::string, int> stems;
    for (const Preset& preset : presets) {
        ++stems[preset.file.stem().string()];
    }
    for (Preset& preset : presets) {
        if (std::string stem = preset.file.stem().string(); stems[stem] == 1) {
            preset.name = std::move(stem);
        }
    }
    std::ranges::sort(presets, {}, [](const Preset& preset) {
        return std::pair(inSmallLetters(preset.name), preset.name);
    });
    return presets;
}

std::vector<Preset> PresetFolder::presets() const {
    std::vector<Preset> presets = list();
    presets.resize(std::min(presets.size(), most));
    for (Preset& preset : presets) {
        preset.problem = problemOf(preset.file);
    }
    return presets;
}

Result<std::filesystem::path> PresetFolder::fileNamed(std::string_view name) const {
    const std::vector<Preset> presets = list();
    const auto found = std::ranges::find_if(presets, [=](const Preset& preset) {
        return preset.name == name || preset.file.filename() == name;
    });
    if (found == presets.end()) {
        return problemWith(TONQUIL_TEXT("Problem", "There is no preset called \"%@\"."),
                           {std::string(name)});
    }
    return found->file;
}

Result<PresetPlace> PresetFolder::placeFor(std::string_view name,
                                           std::string_view extension) const {
    // UTF-8 continuation bytes start with the bits 10.
    const auto length = std::ranges::count_if(
        name, [](char c) { return (static_cast<unsigned char>(c) >> 6U) != 2; });
    const bool isUsable = length > 0 && length <= longestName && !name.starts_with('.') &&
                          std::ranges::none_of(name, [](unsigned char c) {
                              return c < ' ' || c == '/' || c == 0x7F;
                          });
    if (!isUsable) {
        return problem(TONQUIL_TEXT("Problem",
                                    "A preset's name has up to 50 characters, no slash, and no "
                                    "dot in front. Nothing was saved."));
    }
    const auto taken = [](const std::string& other) {
        return problemWith(
            TONQUIL_TEXT("Problem", "There is a preset called \"%@\" already. Nothing was saved."),
            {other});
    };
    PresetPlace place;
    std::string stem(name);
    const std::vector<Preset> presets = list();
    if (const auto replaced = std::ranges::find(presets, name, &Preset::name);
        replaced != presets.end()) {
        place.replaced = replaced->file;
        stem = replaced->file.stem();
    } else if (std::ranges::any_of(presets, [&](const Preset& preset) {
                   return preset.file.stem() == name || preset.file.filename() == name;
               })) {
        return taken(stem);
    }
    place.file = _folder / stem.append(extension);
    const auto there = std::ranges::find(presets, place.file, &Preset::file);
    if (there != presets.end() && place.replaced != there->file) {
        return taken(there->name);
    }
    std::error_code failure;
    std::filesystem::create_directories(_folder, failure);
    if (failure) {
        return problem(TONQUIL_TEXT("Problem", "The folder of presets could not be made."),
                       failure.message());
    }
    return place;
}

}  // namespace tonquil
