// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tonquil {

/// Tells displays apart: a plate with a number and a name in the middle of a display. It lets the
/// pointer through and takes no focus.
class DisplayLabel : public QWidget {
 public:
    /// `isBlended`: a compositor blends translucent windows.
    DisplayLabel(QString number, QString name, bool isBlended);

    /// Shows the label on the display with this frame, in points.
    void showOn(const QRect& frame);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    [[nodiscard]] QFont numberFont() const;
    [[nodiscard]] QFont nameFont() const;
    [[nodiscard]] QSize plateSize() const;

    QString _number;
    QString _name;
    double _radius;
};

}  // namespace tonquil
