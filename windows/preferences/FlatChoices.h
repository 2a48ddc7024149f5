// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace tonquil {

/// A checkbox whose box is styled like the fields, with a frame visible on both themes.
class FlatCheckBox : public QCheckBox {
 public:
    using QCheckBox::QCheckBox;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A matching radio button.
class FlatRadioButton : public QRadioButton {
 public:
    using QRadioButton::QRadioButton;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tonquil
