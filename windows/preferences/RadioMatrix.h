// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

class QButtonGroup;

namespace tonquil {

/// A column of radio buttons, one of them selected. Each has a tag.
class RadioMatrix : public QWidget {
 public:
    /// Tags count from 0; the first cell is selected.
    explicit RadioMatrix(const QStringList& titles, QWidget* parent = nullptr);

    [[nodiscard]] int selectedTag() const;
    /// Selects a cell without calling the action. Returns false and changes nothing if no cell has
    /// the tag.
    bool selectCellWithTag(int tag);
    /// The height for a label beside the first cell, in points.
    [[nodiscard]] int cellHeight() const;
    /// Called when the user picks a cell, even the selected one.
    void setAction(std::function<void()> action);

 private:
    QButtonGroup* _cells;
    std::function<void()> _action;
};

}  // namespace tonquil
