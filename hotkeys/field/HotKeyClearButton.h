// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace tonquil {

/// The small cross in a hot-key field that removes the hot key.
class HotKeyClearButton : public QAbstractButton {
    Q_OBJECT

 public:
    explicit HotKeyClearButton(QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
};

}  // namespace tonquil
