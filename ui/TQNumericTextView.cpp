// SPDX-License-Identifier: MIT
#include "ui/TQNumericTextView.h"

#include <QKeyEvent>

#include "ui/TQNumericTextField.h"

namespace tonquil {

void TQNumericTextView::attach(TQNumericTextField& field) {
    field.installEventFilter(this);
}

bool TQNumericTextView::eventFilter(QObject* watched, QEvent* event) {
    auto* field = dynamic_cast<TQNumericTextField*>(watched);
    if (field == nullptr || event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto editing = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((key->modifiers() & editing) != 0) {
        return false;
    }
    if (key->key() == Qt::Key_Up) {
        field->incrementValueOf();
        return true;
    }
    if (key->key() == Qt::Key_Down) {
        field->decrementValueOf();
        return true;
    }
    return false;
}

}  // namespace tonquil
