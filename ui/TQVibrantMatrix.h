// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

namespace tonquil {

class TQTabButtonCell;

/// A row of tab buttons, one of which is selected. The first column is at the reading side.
///
/// The row is one stop of the Tab key; the arrow keys, Home and End move within it.
class TQVibrantMatrix : public QWidget {
 public:
    using Action = std::function<void(int column)>;

    /// One column per title; the first is selected.
    explicit TQVibrantMatrix(const QStringList& titles, QWidget* parent = nullptr);

    [[nodiscard]] int columnCount() const { return static_cast<int>(_cells.size()); }
    /// From 0; -1 without any column.
    [[nodiscard]] int selectedColumn() const { return _selectedColumn; }
    /// Selects without telling anybody. A column that is not there is ignored.
    void setSelectedColumn(int column);
    /// Called when the person selects a column that was not selected.
    void setAction(Action action) { _action = std::move(action); }

    /// The button of a column; null for a column that is not there. Owned by the row.
    [[nodiscard]] TQTabButtonCell* cell(int column) const;
    /// The background may shine through between the buttons.
    [[nodiscard]] static bool allowsVibrancy() { return true; }

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    void pick(int column);

    std::vector<TQTabButtonCell*> _cells;
    int _selectedColumn = -1;
    Action _action;
};

}  // namespace tonquil
