// SPDX-License-Identifier: MIT
#include "windows/preferences/NoteLabel.h"

#include <QCheckBox>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include "windows/panel/PanelIcons.h"

namespace tonquil {

NoteLabel::NoteLabel(Kind kind, const QCheckBox& box, const QString& text)
    : QLabel(text),
      _kind(kind),
      _boxWidth(box.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box)) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QStyleOptionButton option;
    option.rect = QRect(QPoint(), box.sizeHint());
    setIndent(box.style()->subElementRect(QStyle::SE_CheckBoxContents, &option, &box).left());
    if (kind == Kind::Note) {
        setForegroundRole(QPalette::PlaceholderText);
    }
}

// The sign is beside the first of the lines.
void NoteLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (_kind == Kind::Problem) {
        const QRect line(contentsRect().topLeft(),
                         QSize(contentsRect().width(), fontMetrics().height()));
        QRect sign(0, 0, _boxWidth, _boxWidth);
        sign.moveCenter(line.center());
        sign.moveLeft(line.left());
        QPainter painter(this);
        panelIcon(PanelIcon::Warning)
            .paint(&painter, QStyle::visualRect(layoutDirection(), line, sign));
    }
}

}  // namespace tonquil
