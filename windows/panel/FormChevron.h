// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace tonquil {

/// A flat button at the end of the compact form: points down to what the advanced form adds, and up
/// to hide it.
class FormChevron : public QAbstractButton {
 public:
    explicit FormChevron(QWidget* parent);

    void showForm(bool isAdvanced);
    [[nodiscard]] QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    bool _isAdvanced = true;
};

}  // namespace tonquil
