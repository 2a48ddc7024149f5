// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "tests/ui/Input.h"
#include "windows/alerts/AlertWindow.h"
#include "windows/alerts/Localisation.h"
#include "windows/alerts/ModalAlerts.h"

namespace tonquil {
namespace {

Alert conflictAlert() {
    return {.style = Alert::Style::Critical,
            .table = "KVFluxCheck",
            .message = "%@ is present on this computer.",
            .messageArguments = {"Dusk"},
            .informativeText = "[%1$@ installed, might interfer %2$@.]",
            .informativeArguments = {"Tonquil", "Dusk"},
            .buttons = {"Continue", "Quit"}};
}

/// The alert's answer when the person does something to its window.
std::size_t answerTo(const std::function<void(AlertWindow&)>& act) {
    ModalAlerts alerts([] { return Appearance(); });
    QTimer::singleShot(
        0, [&act] { act(*dynamic_cast<AlertWindow*>(QApplication::activeModalWidget())); });
    return alerts.runModal(conflictAlert());
}

TEST(Alert, AnswersWithTheButtonAndWithTheFirstWhenItIsDismissed) {
    EXPECT_EQ(answerTo([](AlertWindow& window) { window.buttons()[1]->click(); }), 1U);
    EXPECT_EQ(answerTo([](AlertWindow& window) { window.buttons()[0]->click(); }), 0U);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_EQ(answerTo([key](AlertWindow& window) { pressKey(window, key); }), 0U);
    }
    EXPECT_EQ(answerTo([](AlertWindow& window) { window.close(); }), 0U);
}

TEST(Alert, SaysInWordsWhatTheKeysStandFor) {
    AlertWindow window(conflictAlert(), Appearance());
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        texts += label->text();
    }
    EXPECT_TRUE(texts.contains(QStringLiteral("Dusk is present on this computer.")));
    const QString information = texts.last();
    EXPECT_TRUE(
        information.startsWith(QStringLiteral("Dusk changes the same colour tables as Tonquil, ")))
        << information.toStdString();
    EXPECT_FALSE(information.contains(QLatin1Char('%')));
    EXPECT_FALSE(information.contains(QLatin1Char('[')));
}

TEST(Alert, GrowsWithItsTexts) {
    Alert alert = conflictAlert();
    alert.messageArguments = {std::string("A program with a name that goes on ")
                                  .append("and on, in a language of long words, ")
                                  .append("without an end in sight")};
    alert.informativeArguments.back() = alert.messageArguments.front();
    AlertWindow window(alert, Appearance());
    window.show();
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width()))
            << label->text().toStdString();
    }
    EXPECT_GT(window.height(), AlertWindow(conflictAlert(), Appearance()).sizeHint().height());
}

}  // namespace
}  // namespace tonquil
