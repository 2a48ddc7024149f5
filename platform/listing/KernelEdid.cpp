// SPDX-License-Identifier: MIT
#include "platform/listing/KernelEdid.h"

#include <algorithm>
#include <cctype>
#include <string>
#include <system_error>

#include "files/BoundedFile.h"

namespace tonquil {

namespace {

/// Whether `folder` is named as in "card0-DP-1", for any card.
bool isConnectorOfSomeCard(std::string_view folder, std::string_view connector) {
    constexpr std::string_view card = "card";
    if (!folder.starts_with(card)) {
        return false;
    }
    folder.remove_prefix(card.size());
    const auto dash = folder.find('-');
    return dash != std::string_view::npos && folder.substr(dash + 1) == connector &&
           std::ranges::all_of(folder.substr(0, dash),
                               [](unsigned char c) { return std::isdigit(c) != 0; });
}

}  // namespace

std::optional<Edid> readKernelEdid(const std::filesystem::path& connectors,
                                   std::string_view connector) {
    // 256 blocks of 128 bytes are the most that an EDID can have.
    constexpr std::size_t mostBytes = 256 * std::size_t{128};
    std::error_code none;
    std::filesystem::directory_iterator folder(connectors, none);
    for (; !none && folder != std::filesystem::directory_iterator(); folder.increment(none)) {
        if (!isConnectorOfSomeCard(folder->path().filename().string(), connector)) {
            continue;
        }
        // Each card may have a connector of this name; only one of them has the monitor.
        const auto bytes = readBoundedFile(folder->path() / "edid", mostBytes);
        if (auto edid = bytes ? parseEdid(*bytes) : std::nullopt) {
            return edid;
        }
    }
    return std::nullopt;
}

}  // namespace tonquil
