// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tonquil {

class TQNumericTextField;

/// The keys that all numeric fields of a window share: up and down arrow step the field they are
/// pressed in.
///
/// With Control, Alt or Meta held they stay ordinary editing keys; Shift makes no difference.
class TQNumericTextView : public QObject {
 public:
    using QObject::QObject;

    /// Looks after a field. Either of the two may go first.
    void attach(TQNumericTextField& field);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tonquil
