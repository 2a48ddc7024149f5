// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QPointer>

#include "app/files/FileDialogs.h"

class QDialog;
class QWidget;

namespace tonquil {

/// The desktop's own file dialogs, in front of a window.
class PanelFileDialogs final : public FileDialogs {
 public:
    /// The window must outlive the dialogs.
    explicit PanelFileDialogs(QWidget& window) : _window(window) {}

    void chooseFileToOpen(Chosen chosen) override;
    void chooseFileToSave(SettingsFormat format, ChosenWithFormat chosen) override;
    void choosePresetName(const std::vector<std::string>& names, NameChosen chosen) override;
    void alert(const std::string& title, const std::string& message,
               const std::vector<std::string>& arguments) override;

 private:
    /// Shows a dialog that deletes itself; returns false and shows nothing while another one is
    /// open.
    bool present(QDialog* dialog);

    QWidget& _window;
    bool _isDialogUp = false;
    /// Set while one is open.
    QPointer<QMessageBox> _alert;
};

}  // namespace tonquil
