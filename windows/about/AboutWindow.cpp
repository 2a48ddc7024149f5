// SPDX-License-Identifier: MIT
#include "windows/about/AboutWindow.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QTextDocument>
#include <QVBoxLayout>

#include "ui/theme/Appearance.h"
#include "ui/theme/Theme.h"
#include "windows/about/KVAboutBoxBackground.h"
#include "windows/about/KVAboutBoxIconView.h"
#include "windows/about/KVAboutBoxScrollView.h"
#include "windows/panel/PanelIcons.h"

namespace tonquil {

namespace {

// In points.
constexpr QSize windowSize(520, 340);
constexpr int margin = 24;
constexpr int iconSize = 128;

/// The four words are placeholders for `filledTemplate` and must stay in this order.
QString templateText(const Theme& theme) {
    const double size = QFontDatabase::systemFont(QFontDatabase::GeneralFont).pointSizeF();
    return QStringLiteral(
               "<p style='margin: 0; font-size: %1pt'>App</p>"
               "<p style='margin-top: 4px; margin-bottom: 0; color: %3'>Version</p>"
               "<p style='margin-top: 4px; margin-bottom: 0; font-size: %2pt; color: %3'>"
               "Copyright</p>"
               "<p style='margin-top: 16px; margin-bottom: 0'>Credits</p>")
        .arg(size * 1.75)
        .arg(size * 0.9)
        .arg(theme.secondaryText.name());
}

}  // namespace

// A dialog: only such a window can be kept above another.
AboutWindow::AboutWindow() : QWidget(nullptr, Qt::Dialog) {
    const Appearance appearance{.isDark = false, .allowsVibrancy = false};
    setObjectName(QStringLiteral("KVAboutBox"));
    setWindowTitle(QCoreApplication::translate("KVAboutBox", "About Tonquil"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    setAppearance(*this, appearance);
    setFixedSize(windowSize);
    auto* background = new KVAboutBoxBackground;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(background);

    _iconView = new KVAboutBoxIconView(background);
    _iconView->setGeometry(margin, margin, iconSize, iconSize);
    _iconView->setPicture(drawProgramIcon);
    _textView = new KVAboutBoxScrollView(background);
    const int left = margin + iconSize + margin;
    _textView->setGeometry(left, margin, windowSize.width() - left - margin,
                           windowSize.height() - 2 * margin);
    _textView->setAccessibleName(QCoreApplication::translate("KVAboutBox", "About Tonquil"));
    auto text = std::make_unique<QTextDocument>();
    text->setDefaultFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    text->setHtml(templateText(themeFor(appearance)));
    _textView->setText(std::move(text));
}

void AboutWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tonquil
