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

TEST(Alert, ShowsTextsForKeysInFull) {
    Alert alert = conflictAlert();
    const std::string rival =
        "A program with a name that goes on and on, in a language of long words, without an end";
    alert.messageArguments = {rival};
    alert.informativeArguments.back() = rival;
    AlertWindow window(alert, Appearance());
    window.show();
    std::vector<std::string> texts;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        texts.push_back(label->text().toStdString());
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << texts.back();
    }
    EXPECT_TRUE(std::ranges::count(texts, rival + " is present on this computer."));
    EXPECT_TRUE(texts.back().starts_with(rival + " changes the same colour tables as Tonquil, "));
    EXPECT_EQ(texts.back().find_first_of("%["), std::string::npos) << texts.back();
}

}  // namespace
}  // namespace tonquil
