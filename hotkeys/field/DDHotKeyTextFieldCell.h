// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace tonquil {

class DDHotKeyTextFieldEditor;

/// Hands out what edits a field.
class DDHotKeyTextFieldCell {
 public:
    /// The editor that all hot-key fields of the program share, given this field; null for any
    /// other widget. The application owns the editor, and must exist.
    [[nodiscard]] static DDHotKeyTextFieldEditor* fieldEditorForView(QWidget* view);
};

}  // namespace tonquil
