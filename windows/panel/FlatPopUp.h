// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace tonquil {

/// A drop-down menu styled like the panel's fields.
class FlatPopUp : public QComboBox {
 public:
    using QComboBox::QComboBox;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tonquil
