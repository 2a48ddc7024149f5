// SPDX-License-Identifier: MIT
#include "windows/panel/PanelFileDialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "windows/menus/ProblemText.h"

namespace tonquil {

namespace {

/// The formats in the order of `SettingsFormat`, as the dialog names them.
QStringList formatFilters() {
    return {QCoreApplication::translate("Files", "Settings of one display (*.tonquil)"),
            QCoreApplication::translate("Files", "Settings of all displays (*.tonquil-screens)"),
            QCoreApplication::translate("Files", "ICC profile of one display (*.icc)"),
            QCoreApplication::translate("Files", "Calibration of one display (*.cal)")};
}

SettingsFormat formatOf(const QString& filter) {
    const auto index = formatFilters().indexOf(filter);
    return index < 0 ? SettingsFormat::SingleDisplay : static_cast<SettingsFormat>(index);
}

const char* suffixOf(SettingsFormat format) {
    switch (format) {
        case SettingsFormat::MultiDisplay:
            return "tonquil-screens";
        case SettingsFormat::Icc:
            return "icc";
        case SettingsFormat::Cal:
            return "cal";
        case SettingsFormat::SingleDisplay:
            break;
    }
    return "tonquil";
}

std::filesystem::path pathFrom(const QString& text) {
    return QFile::encodeName(text).toStdString();
}

/// The format decides which extension the dialog adds to a name without one.
void savePanelFormatDidChange(QFileDialog& dialog, const QString& filter) {
    dialog.setDefaultSuffix(QString::fromLatin1(suffixOf(formatOf(filter))));
}

}  // namespace

bool PanelFileDialogs::present(QDialog* dialog) {
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (_isDialogUp) {
        delete dialog;
        return false;
    }
    _isDialogUp = true;
    QObject::connect(dialog, &QDialog::finished, dialog, [this] { _isDialogUp = false; });
    dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
    return true;
}

void PanelFileDialogs::chooseFileToOpen(Chosen chosen) {
    auto* dialog = new QFileDialog(&_window, QCoreApplication::translate("Files", "Open settings"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({QCoreApplication::translate(
                                "Files",
                                "Settings, profiles and tables (*.tonquil *.tonquil-screens *.icc "
                                "*.icm *.cal *.amp)"),
                            QCoreApplication::translate("Files", "All files (*)")});
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [chosen = std::move(chosen)](const QString& file) { chosen(pathFrom(file)); });
    present(dialog);
}

void PanelFileDialogs::chooseFileToSave(SettingsFormat format, ChosenWithFormat chosen) {
    auto* dialog = new QFileDialog(&_window, QCoreApplication::translate("Files", "Save settings"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters(formatFilters());
    dialog->selectNameFilter(formatFilters().at(static_cast<qsizetype>(format)));
    savePanelFormatDidChange(*dialog, dialog->selectedNameFilter());
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        savePanelFormatDidChange(*dialog, filter);
    });
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [dialog, chosen = std::move(chosen)](const QString& file) {
                         chosen(pathFrom(file), formatOf(dialog->selectedNameFilter()));
                     });
    present(dialog);
}

void PanelFileDialogs::choosePresetName(const std::vector<std::string>& names, NameChosen chosen) {
    QStringList present;
    for (const std::string& name : names) {
        present.append(QString::fromStdString(name));
    }
    auto* dialog = new QInputDialog(&_window);
    dialog->setWindowTitle(QCoreApplication::translate("Files", "Save as preset"));
    dialog->setLabelText(QCoreApplication::translate("Files", "Name of the preset:"));
    dialog->setComboBoxEditable(true);
    dialog->setComboBoxItems(present);
    dialog->setTextValue({});
    const auto showWhatHappens = [dialog, present](const QString& name) {
        dialog->setOkButtonText(present.contains(name.trimmed())
                                    ? QCoreApplication::translate("Files", "Replace")
                                    : QCoreApplication::translate("Files", "Save"));
    };
    showWhatHappens({});
    QObject::connect(dialog, &QInputDialog::textValueChanged, dialog, showWhatHappens);
    QObject::connect(dialog, &QInputDialog::textValueSelected, dialog,
                     [chosen = std::move(chosen)](const QString& name) {
                         chosen(name.trimmed().toStdString());
                     });
    this->present(dialog);
}

// An alert may follow a dialog that is still closing. Files may be opened by the hundred, and all
// their problems are shown in one window.
void PanelFileDialogs::alert(const std::string& title, const std::string& message,
                             const std::vector<std::string>& arguments) {
    const QString titleText = QCoreApplication::translate("Problem", title.c_str());
    const QString text = translatedProblem(message, arguments);
    if (_alert && _alert->isVisible()) {
        _alert->setWindowTitle(titleText);
        _alert->setText(titleText);
        _alert->setInformativeText(text);
        return;
    }
    _alert =
        new QMessageBox(QMessageBox::NoIcon, titleText, titleText, QMessageBox::NoButton, &_window);
    _alert->setInformativeText(text);
    // A file name may look like markup.
    for (QLabel* label : _alert->findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    _alert->addButton(QCoreApplication::translate("Files", "OK"), QMessageBox::AcceptRole);
    _alert->setAttribute(Qt::WA_DeleteOnClose);
    _alert->setWindowModality(Qt::WindowModal);
    _alert->show();
}

}  // namespace tonquil
