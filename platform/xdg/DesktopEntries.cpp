// SPDX-License-Identifier: MIT
#include "platform/xdg/DesktopEntries.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <system_error>
#include <utility>

#include "platform/xdg/DesktopEntry.h"

namespace tonquil {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

/// The absolute paths in a colon-separated list.
std::vector<fs::path> pathsFrom(const std::string& list) {
    std::vector<fs::path> paths;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        fs::path path(list.substr(start, end - start));
        if (path.is_absolute()) {
            paths.push_back(std::move(path));
        }
        start = end + 1;
    }
    return paths;
}

std::string firstSet(std::initializer_list<const char*> names) {
    for (const char* name : names) {
        if (std::string value = environment(name); !value.empty()) {
            return value;
        }
    }
    return {};
}

}  // namespace

DesktopEntries::DesktopEntries(Places places) : _places(std::move(places)) {}

DesktopEntries::Places DesktopEntries::fromEnvironment() {
    fs::path home(environment("XDG_DATA_HOME"));
    if (!home.is_absolute()) {
        home = fs::path(environment("HOME")) / ".local/share";
    }
    std::vector<fs::path> folders = pathsFrom(environment("XDG_DATA_DIRS"));
    if (folders.empty()) {
        folders = {"/usr/local/share", "/usr/share"};
    }
    if (home.is_absolute()) {
        folders.insert(folders.begin(), home);
    }
    for (fs::path& folder : folders) {
        folder /= "applications";
    }
    return {.applications = std::move(folders),
            .programs = pathsFrom(environment("PATH")),
            .locale = firstSet({"LC_ALL", "LC_MESSAGES", "LANG"})};
}

std::optional<InstalledProgram> DesktopEntries::firstInstalled(
    std::span<const std::string_view> candidates) const {
    for (const std::string_view candidate : candidates) {
        if (auto program = find(candidate)) {
            return program;
        }
    }
    return std::nullopt;
}

std::optional<InstalledProgram> DesktopEntries::find(std::string_view desktopFileID) const {
    const auto holds = [&](const fs::path& folder) {
        std::error_code error;
        return fs::exists(folder / desktopFileID, error);
    };
    const auto folder = std::ranges::find_if(_places.applications, holds);
    if (folder == _places.applications.end()) {
        return std::nullopt;
    }
    const auto entry = DesktopEntry::read(*folder / desktopFileID);
    if (!entry || entry->boolValue("Hidden", false) || !canStart(entry->value("TryExec"))) {
        return std::nullopt;
    }
    InstalledProgram program{.name = entry->localizedValue("Name", _places.locale),
                             .icon = entry->localizedValue("Icon", _places.locale)};
    if (program.name.empty()) {
        program.name = fs::path(desktopFileID).stem().native();
    }
    return program;
}

bool DesktopEntries::canStart(const std::string& program) const {
    const auto isExecutable = [](const fs::path& path) {
        std::error_code error;
        return fs::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
    };
    if (program.empty()) {
        return true;
    }
    if (fs::path(program).is_absolute()) {
        return isExecutable(program);
    }
    return std::ranges::any_of(
        _places.programs, [&](const fs::path& folder) { return isExecutable(folder / program); });
}

}  // namespace tonquil
