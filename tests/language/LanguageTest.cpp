// SPDX-License-Identifier: MIT
#include "windows/language/Language.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QToolButton>
#include <algorithm>
#include <set>
#include <stdexcept>
#include <tuple>

#include "platform/missing/MissingKeyboardLayout.h"
#include "platform/missing/MissingWindowSystem.h"
#include "targets/TQTargetWindowController.h"
#include "ui/CurvePlot.h"
#include "ui/TQNumericTextField.h"
#include "ui/TQTabButtonCell.h"
#include "windows/about/KVAboutBoxController.h"
#include "windows/about/KVAboutBoxScrollView.h"
#include "windows/alerts/AlertWindow.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/PanelFileDialogs.h"
#include "windows/preferences/PreferencesWindow.h"

namespace tonquil {
namespace {

using testing::SizeIs;

TEST(Language, IsTheFirstOfThePersonsThatThereIsAndEnglishCounts) {
    const QStringList available = {QStringLiteral("de"), QStringLiteral("ja")};
    const std::vector<std::tuple<QStringList, QString>> rows = {
        {{QStringLiteral("de-AT"), QStringLiteral("de")}, QStringLiteral("de")},
        {{QStringLiteral("ja_JP")}, QStringLiteral("ja")},
        {{QStringLiteral("nl-NL"), QStringLiteral("de-DE")}, QStringLiteral("de")},
        {{QStringLiteral("en-GB"), QStringLiteral("de-DE")}, QString()},
        {{QStringLiteral("C"), QStringLiteral("de-DE")}, QString()},
        {{QStringLiteral("nl-NL")}, QString()},
        {QStringList(), QString()}};
    for (const auto& [wanted, language] : rows) {
        SCOPED_TRACE(wanted.join(u' ').toStdString());
        EXPECT_EQ(chosenLanguage(wanted, available), language);
    }
}

class Windows : public testing::Test {
 protected:
    /// Also of a class that the toolkit does not know by name.
    template <typename Control>
    [[nodiscard]] static const Control& first(const QWidget& window) {
        for (const QWidget* each : window.findChildren<QWidget*>()) {
            if (const auto* found = dynamic_cast<const Control*>(each)) {
                return *found;
            }
        }
        throw std::runtime_error("There is no such control.");
    }
    static void show(QWidget& window) {
        window.show();
        // A text of another height is told to one layout after the other.
        for (int level = 0; level < 4; ++level) {
            QCoreApplication::processEvents();
        }
    }
    MissingWindowSystem windowSystem;
    MissingKeyboardLayout layout;
};

TEST_F(Windows, SpeakGermanAndWriteNumbersAsBefore) {
    const Language german(QStringLiteral("de"));
    ControlPanel panel(windowSystem);
    show(panel);
    EXPECT_EQ(first<QCheckBox>(panel).text(), QStringLiteral("Korrektur anwenden"));
    EXPECT_EQ(first<TQNumericTextField>(panel).text(), QStringLiteral("1.00"));

    // What code without a toolkit says, with and without arguments.
    panel.showSubject({.title = "All displays",
                       .isAllDisplays = true,
                       .obstacle = "The X server has no screen."});
    EXPECT_EQ(first<CurvePlot>(panel).message(),
              QStringLiteral("Der X-Server hat keinen Bildschirm."));
    const auto buttons = panel.findChildren<QToolButton*>();
    EXPECT_TRUE(std::ranges::any_of(buttons, [](const QToolButton* button) {
        return button->accessibleName() == QStringLiteral("Bearbeitet: Alle Bildschirme");
    }));
    PanelFileDialogs dialogs(panel);
    dialogs.alert("No such display",
                  "No display with the reference ID %@ is attached. tonquilctl displays lists "
                  "them.",
                  {"4-%@"});
    EXPECT_TRUE(panel.findChild<QMessageBox*>()->informativeText().startsWith(
        QStringLiteral("Es ist kein Bildschirm mit der Referenz-ID 4-%@ angeschlossen.")));

    AlertWindow alert({.table = "KVFluxCheck",
                       .message = "%@ is present on this computer.",
                       .messageArguments = {"Dusk"},
                       .informativeText = "[%1$@ installed, might interfer %2$@.]",
                       .informativeArguments = {"Tonquil", "Dusk"},
                       .buttons = {"Continue", "Quit"}},
                      {}, nullptr);
    QStringList texts;
    for (const QLabel* label : alert.findChildren<QLabel*>()) {
        texts += label->text();
    }
    EXPECT_THAT(texts.filter(QStringLiteral("Dusk ist auf diesem Computer vorhanden.")), SizeIs(1));
    EXPECT_THAT(texts.filter(QStringLiteral("Dusk ändert dieselben Farbtabellen wie Tonquil")),
                SizeIs(1));
}

TEST_F(Windows, HaveCreditsInEveryLanguage) {
    const BundleInformation ourselves{
        .path = "/usr/bin/tonquil", .shortVersion = "1", .build = "1"};
    std::set<QString> seen;
    QStringList names = translatedLanguages();
    ASSERT_THAT(names, SizeIs(4));
    names.append(QString());
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const Language language(name);
        KVAboutBoxController about(ourselves);
        (void)about.window();
        const QString text = about.textView()->toPlainText();
        EXPECT_TRUE(text.contains(QStringLiteral("xkbcommon")));
        EXPECT_TRUE(seen.insert(text).second) << "Another language has the same text.";
    }
}

/// What of a window's texts has not got the room that it takes.
QStringList cutOffIn(const QWidget& window) {
    QStringList found;
    const auto need = [&](const QWidget& control, const QString& text, QSize room, QSize needed) {
        if (control.isVisibleTo(&window) && !text.isEmpty() &&
            (room.width() < needed.width() || room.height() < needed.height())) {
            found += text;
        }
    };
    for (const auto* label : window.findChildren<QLabel*>()) {
        const QSize needed = label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                               : label->minimumSizeHint();
        need(*label, label->text(), label->size(), needed);
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        const auto* tab = dynamic_cast<const TQTabButtonCell*>(button);
        need(*button, button->text(), button->size(),
             tab != nullptr ? tab->minimumSizeHint() : text);
    }
    for (const auto* list : window.findChildren<QComboBox*>()) {
        need(*list, list->currentText(), list->size(), list->minimumSizeHint());
    }
    return found;
}

TEST_F(Windows, CutOffNoTextInAnyLanguage) {
    QStringList names = translatedLanguages();
    names.append(QString());
    for (const QString& name : names) {
        SCOPED_TRACE(name.toStdString());
        const Language language(name);
        ControlPanel panel(windowSystem);
        panel.showChannelStrip(true);
        panel._setAdvancedPanel(true);
        panel.showRemoteConfiguration(true);
        panel.showSubject({.title = "DP-1", .obstacle = {}});
        show(panel);
        EXPECT_EQ(cutOffIn(panel), QStringList());
        EXPECT_LE(panel.width(), 360);

        PreferencesWindow preferences(layout);
        show(preferences);
        EXPECT_EQ(cutOffIn(preferences), QStringList());

        TQTargetWindowController targets;
        targets.window().resize(targets.window().minimumSize());
        for (const int kind : {0, 1}) {
            targets.setKind(kind);
            show(targets.window());
            EXPECT_EQ(cutOffIn(targets.window()), QStringList());
        }
    }
}

}  // namespace
}  // namespace tonquil
