// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tonquil {

/// A button styled like the fields; a default button stands out by its grey.
class FlatButton : public QPushButton {
 public:
    using QPushButton::QPushButton;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

 private:
    bool _isFocusShown = false;
};

}  // namespace tonquil
