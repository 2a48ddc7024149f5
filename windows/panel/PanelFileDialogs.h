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
    void alert(const std::string& title, const std::string& message,
               const std::vector<std::string>& arguments) override;

 private:
    /// Shows a dialog that deletes itself; false, and none is shown, while another one is up.
    bool present(QDialog* dialog);

    QWidget& _window;
    bool _isDialogUp = false;
    /// While one is up.
    QPointer<QMessageBox> _alert;
};

}  // namespace tonquil
