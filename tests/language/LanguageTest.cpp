// SPDX-License-Identifier: MIT
#include "windows/language/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QToolButton>
#include <algorithm>
#include <tuple>

#include "platform/missing/MissingWindowSystem.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/PanelFileDialogs.h"

namespace tonquil {
namespace {

using testing::SizeIs;

TEST(Language, IsUsersFirstAvailableOneIncludingEnglish) {
    const QStringList available = {QStringLiteral("de"), QStringLiteral("ja")};
    const std::vector<std::tuple<QStringList, QString>> rows = {
        {{QStringLiteral("ja_JP"), QStringLiteral("de")}, QStringLiteral("ja")},
        {{QStringLiteral("nl-NL"), QStringLiteral("de-DE")}, QStringLiteral("de")},
        {{QStringLiteral("en-GB"), QStringLiteral("de-DE")}, QString()},
        {{QStringLiteral("C"), QStringLiteral("de-DE")}, QString()},
        {{QStringLiteral("nl-NL")}, QString()}};
    for (const auto& [wanted, language] : rows) {
        SCOPED_TRACE(wanted.join(u' ').toStdString());
        EXPECT_EQ(chosenLanguage(wanted, available), language);
    }
}

TEST(Windows, ShowGermanTextsWithUnchangedNumberFormat) {
    const Language german(QStringLiteral("de"));
    MissingWindowSystem windowSystem;
    ControlPanel panel(windowSystem);
    panel.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(panel.findChild<QCheckBox*>()->text(), QStringLiteral("Korrektur anwenden"));
    EXPECT_EQ(panel.findChildren<QLineEdit*>().first()->text(), QStringLiteral("1.00"));

    // Texts from code without Qt, with and without arguments.
    panel.showSubject({.title = "All displays",
                       .isAllDisplays = true,
                       .obstacle = "The X server has no screen."});
    const auto buttons = panel.findChildren<QToolButton*>();
    EXPECT_TRUE(std::ranges::any_of(buttons, [](const QToolButton* button) {
        return button->accessibleName() == QStringLiteral("Bearbeitet: Alle Bildschirme") &&
               button->accessibleDescription() ==
                   QStringLiteral("Der X-Server hat keinen Bildschirm.");
    }));
    PanelFileDialogs dialogs(panel);
    dialogs.alert("No such display",
                  "No display with the reference ID %@ is attached. tonquilctl displays lists "
                  "them.",
                  {"4-%@"});
    EXPECT_TRUE(panel.findChild<QMessageBox*>()->informativeText().startsWith(
        QStringLiteral("Es ist kein Bildschirm mit der Referenz-ID 4-%@ angeschlossen.")));

    // All in one window, with parts of the sentence translated as well, and as plain text.
    dialogs.alert("Saving failed", "%@ could not be saved: %@.",
                  {"<b>%@</b>", "no space is left on the disk"});
    ASSERT_THAT(panel.findChildren<QMessageBox*>(), SizeIs(1));
    const QString full = QStringLiteral(
        "<b>%@</b> konnte nicht gespeichert werden: auf dem Datenträger ist kein Platz mehr.");
    const auto labels = panel.findChild<QMessageBox*>()->findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [&](const QLabel* label) {
        return label->text() == full && label->textFormat() == Qt::PlainText;
    }));
}

}  // namespace
}  // namespace tonquil
