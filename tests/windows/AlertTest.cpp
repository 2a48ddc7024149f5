// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "tests/ui/Input.h"
#include "windows/alerts/AlertWindow.h"
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

/// The alert's answer after the user has acted on its window.
std::size_t answerTo(const std::function<void(AlertWindow&)>& act) {
    ModalAlerts alerts([] { return Appearance(); });
    QTimer::singleShot(
        0, [&act] { act(*dynamic_cast<AlertWindow*>(QApplication::activeModalWidget())); });
    return alerts.runModal(conflictAlert());
}

TEST(Alert, AnswersWithPressedButtonOrFirstWhenDismissed) {
    EXPECT_EQ(answerTo([](AlertWindow& window) { window.buttons()[1]->click(); }), 1U);
    EXPECT_EQ(answerTo([](AlertWindow& window) { pressKey(window, Qt::Key_Return); }), 0U);
    const auto tabAndReturn = [](AlertWindow& window) {
        pressKey(*window.focusWidget(), Qt::Key_Tab);
        pressKey(*window.focusWidget(), Qt::Key_Return);
    };
    EXPECT_EQ(answerTo(tabAndReturn), 1U);
    EXPECT_EQ(answerTo([](AlertWindow& window) { pressKey(window, Qt::Key_Escape); }), 0U);
    EXPECT_EQ(answerTo([](AlertWindow& window) { window.close(); }), 0U);
}

TEST(Alert, SaysInWordsWhatTheKeysStandFor) {
    const AlertWindow window(conflictAlert(), Appearance());
    std::string texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        texts += label->text().toStdString();
    }
    EXPECT_NE(texts.find("Dusk is present on this computer."), std::string::npos);
    EXPECT_NE(texts.find("Dusk changes the same colour tables as Tonquil, "), std::string::npos);
    EXPECT_EQ(texts.find_first_of("%["), std::string::npos) << texts;
}

}  // namespace
}  // namespace tonquil
