// SPDX-License-Identifier: MIT
#include "ui/TQVibrantMatrix.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "ui/Accessibility.h"
#include "ui/TQTabButtonCell.h"

namespace tonquil {

TQVibrantMatrix::TQVibrantMatrix(const QStringList& titles, QWidget* parent) : QWidget(parent) {
    installAccessibleInterfaces();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const QString& title : titles) {
        const int column = columnCount();
        auto* cell = new TQTabButtonCell(title, this);
        row->addWidget(cell);
        _cells.push_back(cell);
        connect(cell, &QAbstractButton::clicked, this, [this, column] { pick(column); });
    }
    setSelectedColumn(0);
}

TQTabButtonCell* TQVibrantMatrix::cell(int column) const {
    return column >= 0 && column < columnCount() ? _cells.at(static_cast<std::size_t>(column))
                                                 : nullptr;
}

void TQVibrantMatrix::setSelectedColumn(int column) {
    if (cell(column) == nullptr) {
        return;
    }
    _selectedColumn = column;
    for (TQTabButtonCell* each : _cells) {
        const bool isSelected = each == cell(column);
        each->setChecked(isSelected);
        each->setFocusPolicy(isSelected ? Qt::TabFocus : Qt::NoFocus);
    }
}

void TQVibrantMatrix::pick(int column) {
    const bool isChange = column != _selectedColumn;
    // Even without a change: the click has unchecked the button.
    setSelectedColumn(column);
    if (isChange && _action) {
        _action(column);
    }
}

void TQVibrantMatrix::keyPressEvent(QKeyEvent* event) {
    int column = _selectedColumn;
    switch (event->key()) {
        case Qt::Key_Left:
            column += isRightToLeft() ? 1 : -1;
            break;
        case Qt::Key_Right:
            column += isRightToLeft() ? -1 : 1;
            break;
        case Qt::Key_Home:
            column = 0;
            break;
        case Qt::Key_End:
            column = columnCount() - 1;
            break;
        default:
            QWidget::keyPressEvent(event);
            return;
    }
    column = std::clamp(column, 0, std::max(0, columnCount() - 1));
    if (TQTabButtonCell* next = cell(column)) {
        pick(column);
        next->setFocus(Qt::TabFocusReason);
    }
}

}  // namespace tonquil
