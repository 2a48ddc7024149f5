// SPDX-License-Identifier: MIT
#include "platform/folders/XdgFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

#include "platform/folders/Folder.h"

namespace tonquil {

namespace {

namespace fs = std::filesystem;

/// The absolute path in a variable, else an empty one.
fs::path pathFromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    fs::path path(value == nullptr ? "" : value);
    return path.is_absolute() ? path : fs::path();
}

fs::path home() {
    fs::path path = pathFromEnvironment("HOME");
    if (path.empty()) {
        const passwd* user = ::getpwuid(::geteuid());
        path = user == nullptr || user->pw_dir == nullptr ? "" : user->pw_dir;
    }
    return path.is_absolute() ? path : fs::path();
}

fs::path runtimeInTemporary() {
    std::error_code error;
    fs::path temporary = fs::temp_directory_path(error);
    if (error) {
        temporary = "/tmp";
    }
    return temporary / std::string("tonquil-").append(std::to_string(::geteuid()));
}

}  // namespace

Result<XdgFolders> XdgFolders::fromEnvironment() {
    XdgFolders folders;
    folders._config = pathFromEnvironment("XDG_CONFIG_HOME");
    folders._state = pathFromEnvironment("XDG_STATE_HOME");
    if (folders._config.empty() || folders._state.empty()) {
        const fs::path base = home();
        if (base.empty()) {
            return problem("You have no home folder, so settings have no place to be kept.");
        }
        if (folders._config.empty()) {
            folders._config = base / ".config";
        }
        if (folders._state.empty()) {
            folders._state = base / ".local/state";
        }
    }
    folders._config /= "tonquil";
    folders._state /= "tonquil";
    folders._runtime = pathFromEnvironment("XDG_RUNTIME_DIR");
    std::error_code unknown;
    folders._runtime = fs::is_directory(folders._runtime, unknown) ? folders._runtime / "tonquil"
                                                                   : runtimeInTemporary();
    return folders;
}

Result<fs::path> XdgFolders::makeRuntime() const {
    return makeOwnFolder(_runtime).map([this] { return _runtime; });
}

}  // namespace tonquil
