// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace tonquil {

class TQNumericTextField;

/// Keys shared by all numeric fields of a window: the up and down arrows step the field with the
/// focus.
///
/// With Control, Alt or Meta held they stay ordinary editing keys; Shift makes no difference.
class TQNumericTextView : public QObject {
 public:
    using QObject::QObject;

    /// Starts handling a field's keys. Either object may be destroyed first.
    void attach(TQNumericTextField& field);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tonquil
