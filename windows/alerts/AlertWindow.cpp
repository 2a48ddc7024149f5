// SPDX-License-Identifier: MIT
#include "windows/alerts/AlertWindow.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "ui/theme/Theme.h"
#include "windows/alerts/Localisation.h"

namespace tonquil {

namespace {

// In points.
constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int iconSize = 48;
constexpr int textWidth = 340;
constexpr int leastButtonWidth = 88;

/// A triangle for critical alerts, otherwise a circle, with a stroke and a dot inside.
QPixmap drawnIcon(Alert::Style style, const Theme& theme, double scale) {
    QPixmap pixmap(QSize(iconSize, iconSize) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme.secondaryText, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const bool isCritical = style == Alert::Style::Critical;
    if (isCritical) {
        QPainterPath triangle(QPointF(24, 5));
        triangle.lineTo(45, 42);
        triangle.lineTo(3, 42);
        triangle.closeSubpath();
        painter.drawPath(triangle);
    } else {
        painter.drawEllipse(QPointF(24, 24), 20, 20);
    }
    const double top = isCritical ? 18 : 13;
    painter.drawLine(QPointF(24, top), QPointF(24, top + 12));
    painter.setBrush(theme.secondaryText);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPointF(24, top + 18), 2, 2);
    return pixmap;
}

QPixmap iconOf(const Alert& alert, const Theme& theme, double scale) {
    const QString name = QString::fromStdString(alert.icon);
    QIcon icon;
    if (!name.isEmpty()) {
        icon = QFileInfo(name).isAbsolute() ? QIcon(name) : QIcon::fromTheme(name);
    }
    const QPixmap pixmap = icon.pixmap(QSize(iconSize, iconSize), scale);
    return pixmap.isNull() ? drawnIcon(alert.style, theme, scale) : pixmap;
}

QLabel* makeText(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QBoxLayout* makeTexts(const Alert& alert, const Theme& theme) {
    auto* texts = new QVBoxLayout;
    texts->setSpacing(spacing);
    QLabel* const message = makeText(localised(alert.table, alert.message, alert.messageArguments));
    QFont font = message->font();
    font.setBold(true);
    message->setFont(font);
    QLabel* const information =
        makeText(localised(alert.table, alert.informativeText, alert.informativeArguments));
    QPalette palette = information->palette();
    palette.setColor(QPalette::WindowText, theme.secondaryText);
    information->setPalette(palette);
    texts->addWidget(message);
    texts->addWidget(information);
    texts->addStretch();
    return texts;
}

}  // namespace

AlertWindow::AlertWindow(const Alert& alert, const Appearance& appearance, QWidget* parent)
    : QDialog(parent) {
    setAppearance(*this, appearance);
    setWindowTitle(QString());
    setModal(true);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    const Theme& theme = themeFor(appearance);
    auto* icon = new QLabel;
    icon->setObjectName(QStringLiteral("icon"));
    icon->setPixmap(iconOf(alert, theme, devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(margin);
    upper->addWidget(icon);
    upper->addLayout(makeTexts(alert, theme), 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing);
    row->addStretch();
    addButtons(alert, *row);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->addLayout(upper);
    column->addLayout(row);
    // The height of the texts depends on their width.
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void AlertWindow::addButtons(const Alert& alert, QBoxLayout& row) {
    for (const std::string_view title : alert.buttons) {
        const std::size_t index = _buttons.size();
        auto* button = new QPushButton(localised(alert.table, title), this);
        button->setMinimumWidth(leastButtonWidth);
        button->setDefault(index == 0);
        connect(button, &QPushButton::clicked, this, [this, index] {
            _chosenButton = index;
            accept();
        });
        _buttons.push_back(button);
        // Outermost first, behind the stretch; the Tab order is the same.
        row.insertWidget(1, button);
    }
    for (std::size_t index = 1; index < _buttons.size(); ++index) {
        setTabOrder(_buttons[index - 1], _buttons[index]);
    }
    _buttons.front()->setFocus();
}

}  // namespace tonquil
