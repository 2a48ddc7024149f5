// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tonquil {

/// The contents of a saved file; the number is stored in the preferences.
enum class SettingsFormat : std::int64_t {
    SingleDisplay = 0,  ///< One curve.
    MultiDisplay = 1,   ///< The curves of all displays, by reference ID.
    Icc = 2,            ///< The table of one display, as a colour profile.
    Cal = 3,            ///< The table of one display, as a .cal file.
};

/// The file dialogs for settings files, attached to the panel. They return immediately and call
/// back when the user has chosen; a cancelled dialog does not call back. At most one is open at a
/// time.
class FileDialogs {
 public:
    using Chosen = std::function<void(const std::filesystem::path& file)>;
    using ChosenWithFormat =
        std::function<void(const std::filesystem::path& file, SettingsFormat format)>;
    using NameChosen = std::function<void(const std::string& name)>;

    virtual ~FileDialogs() = default;

    virtual void chooseFileToOpen(Chosen chosen) = 0;
    /// Preselects `format`; the user may choose another one.
    virtual void chooseFileToSave(SettingsFormat format, ChosenWithFormat chosen) = 0;
    /// Asks for a preset's name. `present` are the existing presets; choosing one of them replaces
    /// it.
    virtual void choosePresetName(const std::vector<std::string>& present, NameChosen chosen) = 0;
    /// An alert with a title, one sentence and an "OK" button; one already open shows the new
    /// sentence instead. Both texts are keys of the context "Problem"; `arguments` are filled into
    /// the translated message (see `formattedText`). A message without a translation is shown as
    /// is.
    virtual void alert(const std::string& title, const std::string& message,
                       const std::vector<std::string>& arguments) = 0;
};

}  // namespace tonquil
