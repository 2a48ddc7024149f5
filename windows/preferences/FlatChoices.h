// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace tonquil {

/// A checkbox whose box looks as the fields do, with a frame that can be seen on either theme.
class FlatCheckBox : public QCheckBox {
 public:
    using QCheckBox::QCheckBox;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A radio button that goes with it.
class FlatRadioButton : public QRadioButton {
 public:
    using QRadioButton::QRadioButton;

 protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tonquil
