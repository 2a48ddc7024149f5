// SPDX-License-Identifier: MIT
#include "windows/preferences/RadioMatrix.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

namespace tonquil {

namespace {
constexpr int radioSpacing = 4;
}  // namespace

RadioMatrix::RadioMatrix(const QStringList& titles, QWidget* parent)
    : QWidget(parent), _cells(new QButtonGroup(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(radioSpacing);
    for (const QString& title : titles) {
        auto* cell = new QRadioButton(title);
        cell->setChecked(_cells->buttons().isEmpty());
        _cells->addButton(cell, static_cast<int>(_cells->buttons().size()));
        column->addWidget(cell);
    }
    connect(_cells, &QButtonGroup::idClicked, this, [this] {
        if (_action) {
            _action();
        }
    });
}

int RadioMatrix::selectedTag() const {
    return _cells->checkedId();
}

bool RadioMatrix::selectCellWithTag(int tag) {
    QAbstractButton* const cell = _cells->button(tag);
    if (cell == nullptr) {
        return false;
    }
    cell->setChecked(true);
    return true;
}

int RadioMatrix::cellHeight() const {
    return _cells->buttons().isEmpty() ? 0 : _cells->buttons().front()->sizeHint().height();
}

void RadioMatrix::setAction(std::function<void()> action) {
    _action = std::move(action);
}

}  // namespace tonquil
