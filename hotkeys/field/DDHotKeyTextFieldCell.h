// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tonquil {

class DDHotKeyTextFieldEditor;

/// Provides the editor of a field.
class DDHotKeyTextFieldCell {
 public:
    /// The editor shared by all hot-key fields of the program, set to this field; null for any
    /// other widget. Needs an application object, which owns the editor.
    [[nodiscard]] static DDHotKeyTextFieldEditor* fieldEditorForView(QWidget* view);
};

}  // namespace tonquil
