// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QCheckBox;

namespace tonquil {

/// A sentence below a check box, in line with its text. One about a problem has a warning sign
/// below the box; any other is in the secondary colour.
class NoteLabel : public QLabel {
 public:
    enum class Kind { Note, Problem };

    NoteLabel(Kind kind, const QCheckBox& box, const QString& text = {});

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    Kind _kind;
    /// The width of the box, in points.
    int _boxWidth;
};

}  // namespace tonquil
