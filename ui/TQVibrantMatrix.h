// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

namespace tonquil {

class TQTabButtonCell;

/// A row of tab buttons, one of them selected. The first column is at the start in reading
/// direction.
///
/// The row is one Tab stop; the arrow keys, Home and End move within it.
class TQVibrantMatrix : public QWidget {
 public:
    using Action = std::function<void(int column)>;

    /// One column per title; the first is selected.
    explicit TQVibrantMatrix(const QStringList& titles, QWidget* parent = nullptr);

    [[nodiscard]] int columnCount() const { return static_cast<int>(_cells.size()); }
    /// From 0; -1 without columns.
    [[nodiscard]] int selectedColumn() const { return _selectedColumn; }
    /// Selects a column without calling the action. Ignores a column that does not exist.
    void setSelectedColumn(int column);
    /// Called when the user selects a column that was not selected.
    void setAction(Action action) { _action = std::move(action); }

    /// The button of a column; null if there is no such column. Owned by the row.
    [[nodiscard]] TQTabButtonCell* cell(int column) const;
    /// The window's translucent background may show between the buttons.
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
