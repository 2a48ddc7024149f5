// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tonquil {

/// What an alert says and offers. Texts are keys of the string table `table`, to be translated
/// before their arguments are put in (see `formattedText`).
struct Alert {
    enum class Style { Informational, Critical };

    Style style = Style::Informational;
    /// The desktop's name of an icon, or the path of its file; empty for the style's own.
    std::string icon{};
    std::string_view table{};
    std::string_view message;
    std::vector<std::string> messageArguments{};
    std::string_view informativeText;
    std::vector<std::string> informativeArguments{};
    /// The first is the default one, and stands for closing the alert.
    std::vector<std::string_view> buttons;
};

/// Puts questions to the person.
class Alerts {
 public:
    virtual ~Alerts() = default;

    /// Shows an alert, which has at least one button, and waits for the person. Returns the index
    /// of the button; 0 also where the alert was closed without any.
    [[nodiscard]] virtual std::size_t runModal(const Alert& alert) = 0;
};

}  // namespace tonquil
