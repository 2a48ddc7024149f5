// SPDX-License-Identifier: MIT
#include "platform/xdg/AutostartLoginItem.h"

#include <unistd.h>

#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

#include "files/AtomicFile.h"
#include "platform/folders/Folder.h"
#include "platform/xdg/DesktopEntry.h"

namespace tonquil {

bool AutostartLoginItem::isEnabled() const {
    const auto entry = DesktopEntry::read(_file);
    return entry && !entry->value("Exec").empty() && !entry->boolValue("Hidden", false) &&
           entry->boolValue("X-GNOME-Autostart-enabled", true);
}

Result<void> AutostartLoginItem::setEnabled(bool isEnabled) {
    if (isEnabled) {
        return write();
    }
    std::error_code error;
    std::filesystem::remove(_file, error);
    if (error) {
        return problem(_file.native() + " could not be removed: " + error.message() + ".");
    }
    return {};
}

Result<void> AutostartLoginItem::write() const {
    if (::access(_launcher.c_str(), X_OK) != 0) {
        return problem("Tonquil cannot be started at login, for its launcher " +
                       _launcher.native() + " is missing.");
    }
    DesktopEntry entry;
    entry.setValue("Type", "Application");
    entry.setValue("Name", "Tonquil");
    entry.setValue("Comment", "Correct the tone and colour of every display");
    entry.setValue("Icon", "tonquil");
    entry.setValue("Terminal", "false");
    entry.setValue("NoDisplay", "true");
    // Once the program is removed, desktops pass over what it left.
    entry.setValue("TryExec", _launcher.native());
    entry.setValue("Exec", DesktopEntry::quotedArgument(_launcher.native()));
    const std::string text = entry.text();
    return makeFolder(_file.parent_path()).and_then([&] {
        return writeFileAtomically(_file, std::vector<std::uint8_t>(text.begin(), text.end()),
                                   AtomicFileOptions::document());
    });
}

}  // namespace tonquil
