// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tonquil {

/// What a settings file is to hold; the number is what the preferences store.
enum class SettingsFormat : std::int64_t {
    SingleDisplay = 0,  ///< One curve.
    MultiDisplay = 1,   ///< The curves of all displays, by their reference IDs.
};

/// The dialogs of settings files, attached to the panel. They return at once and call back when
/// the person has decided; a dialog that is given up calls nothing. At most one is up at a time.
class FileDialogs {
 public:
    using Chosen = std::function<void(const std::filesystem::path& file)>;
    using ChosenWithFormat =
        std::function<void(const std::filesystem::path& file, SettingsFormat format)>;

    virtual ~FileDialogs() = default;

    virtual void chooseFileToOpen(Chosen chosen) = 0;
    /// Begins with `format`; the person may choose the other one.
    virtual void chooseFileToSave(SettingsFormat format, ChosenWithFormat chosen) = 0;
    /// One sentence with a title above it, and the button "OK"; while one is up, it shows the new
    /// sentence instead. Both are keys of the context "Problem"; `arguments` are put into the
    /// translated message (see `formattedText`). A message that nobody has translated is shown as
    /// it is.
    virtual void alert(const std::string& title, const std::string& message,
                       const std::vector<std::string>& arguments) = 0;
};

}  // namespace tonquil
