// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

class QButtonGroup;

namespace tonquil {

/// Radio buttons, one below the other, of which one is selected. Each has a tag.
class RadioMatrix : public QWidget {
 public:
    /// The tags count from 0; the first cell is selected.
    explicit RadioMatrix(const QStringList& titles, QWidget* parent = nullptr);

    [[nodiscard]] int selectedTag() const;
    /// Selects a cell without telling anybody. False, with nothing changed, where none has the tag.
    bool selectCellWithTag(int tag);
    /// What a label beside the first cell is to be as high as, in points.
    [[nodiscard]] int cellHeight() const;
    /// Called when the person picks a cell, be it the selected one.
    void setAction(std::function<void()> action);

 private:
    QButtonGroup* _cells;
    std::function<void()> _action;
};

}  // namespace tonquil
