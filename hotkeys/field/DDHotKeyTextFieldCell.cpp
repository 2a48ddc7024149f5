// SPDX-License-Identifier: MIT
#include "hotkeys/field/DDHotKeyTextFieldCell.h"

#include <QCoreApplication>
#include <QPointer>

#include "hotkeys/field/DDHotKeyTextField.h"
#include "hotkeys/field/DDHotKeyTextFieldEditor.h"

namespace tonquil {

namespace {

DDHotKeyTextFieldEditor& sharedEditor() {
    // A program that creates a second application object, as tests do, gets a second editor.
    static QPointer<DDHotKeyTextFieldEditor> editor;
    if (!editor) {
        editor = new DDHotKeyTextFieldEditor(QCoreApplication::instance());
    }
    return *editor;
}

}  // namespace

DDHotKeyTextFieldEditor* DDHotKeyTextFieldCell::fieldEditorForView(QWidget* view) {
    auto* const field = qobject_cast<DDHotKeyTextField*>(view);
    if (field == nullptr) {
        return nullptr;
    }
    DDHotKeyTextFieldEditor& editor = sharedEditor();
    editor.setHotKeyField(field);
    return &editor;
}

}  // namespace tonquil
