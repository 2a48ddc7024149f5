// SPDX-License-Identifier: MIT
//
// Any desktop file, in any language, and any argument written into one.

#include <string>

#include "Require.h"
#include "platform/xdg/DesktopEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    const auto entry = tonquil::DesktopEntry::parse(text);
    tonquil::require(entry.localizedValue("Name", text).size() <= size);
    const std::string quoted = tonquil::DesktopEntry::quotedArgument(text);
    tonquil::require(quoted.find('\n') == std::string::npos);
    const auto written = tonquil::DesktopEntry::parse("[Desktop Entry]\nExec=" + quoted);
    tonquil::require(written.value("Exec").size() >= size + 2);
    return 0;
}
