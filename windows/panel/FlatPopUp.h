// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace tonquil {

/// A menu of choices that looks as the panel's fields do.
class FlatPopUp : public QComboBox {
 public:
    using QComboBox::QComboBox;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tonquil
