// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// Text and buttons of an alert. Texts are keys of the string table `table` and are translated
/// before their arguments are filled in (see `formattedText`).
struct Alert {
    enum class Style { Informational, Critical };

    Style style = Style::Informational;
    /// Icon name in the desktop's theme, or path of an icon file; empty for the style's own.
    std::string icon{};
    std::string_view table{};
    std::string_view message;
    std::vector<std::string> messageArguments{};
    std::string_view informativeText;
    std::vector<std::string> informativeArguments{};
    /// The first is the default, and the result if the alert is closed.
    std::vector<std::string_view> buttons;
};

/// Shows modal questions to the user.
class Alerts {
 public:
    virtual ~Alerts() = default;

    /// Shows an alert, which has at least one button, and blocks until the user answers. Returns
    /// the index of the button; 0 also if the alert was closed without one.
    [[nodiscard]] virtual std::size_t runModal(const Alert& alert) = 0;
};

}  // namespace tonquil
