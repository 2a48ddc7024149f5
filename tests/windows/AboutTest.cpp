// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>

#include "platform/missing/MissingWindowSystem.h"
#include "tests/files/FolderContents.h"
#include "tests/ui/Input.h"
#include "windows/about/AboutTexts.h"
#include "windows/about/AboutWindow.h"
#include "windows/about/KVAboutBoxController.h"
#include "windows/about/KVAboutBoxScrollView.h"

namespace tonquil {
namespace {

BundleInformation ourselves() {
    return {.path = "/usr/bin/tonquil",
            .name = "Tonquil",
            .shortVersion = "6.2",
            .build = "6204",
            .copyright = "Copyright 2026"};
}

class AboutBox : public testing::Test {
 protected:
    [[nodiscard]] QString credits(const std::string& html) const {
        putContents(_folder / "Credits.html", html);
        return QString::fromStdString((_folder / "Credits.html").native());
    }

    MissingWindowSystem windowSystem;

 private:
    ScratchFolder _folder;
};

TEST_F(AboutBox, FillsTemplateRepeatably) {
    BundleInformation information = ourselves();
    information.copyright = "Copyright of App and Credits";
    information.name = "Version and Credits";
    KVAboutBoxController controller(information, windowSystem,
                                    credits("<p>To <b>App</b>, with thanks</p><p>Version</p>"));
    (void)controller.window();
    for (int count = 0; count < 2; ++count) {
        EXPECT_EQ(controller.textView()->toPlainText().toStdString(),
                  "Version and Credits\nVersion 6.2 (6204)\nCopyright of App and Credits\n"
                  "To App, with thanks\nVersion");
        controller.updateText();
    }
    information = ourselves();
    information.name.reset();
    information.copyright.reset();
    information.build = "6.2";
    KVAboutBoxController bare(information, windowSystem, QStringLiteral("/nowhere/Credits.html"));
    (void)bare.window();
    EXPECT_EQ(bare.textView()->toPlainText().toStdString(), "tonquil\nVersion 6.2\n\n");
}

TEST_F(AboutBox, DecodesCreditsAndReplacesFontName) {
    EXPECT_EQ(creditsDocument(credits("<meta charset='iso-8859-1'><p>Lucida Grande, \xE9, "
                                      "Lucida Grande</p>"))
                  .toPlainText(),
              QString::fromUtf8("Helvetica Neue, \xC3\xA9, Lucida Grande"));
    EXPECT_EQ(creditsDocument(credits("<p>\xC3\xA9</p>")).toPlainText(),
              QString::fromUtf8("\xC3\xA9"));
}

TEST_F(AboutBox, OpensCentredAtTopAndClosesByEscape) {
    std::string lines;
    for (int line = 0; line < 200; ++line) {
        lines += "<p>A line</p>";
    }
    KVAboutBoxController controller(ourselves(), windowSystem, credits(lines));
    AboutWindow& window = controller.window();
    EXPECT_EQ(controller.textView()->geometry().bottom(), window.rect().bottom());
    QScrollBar& bar = *controller.textView()->verticalScrollBar();
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    for (int count = 0; count < 2; ++count) {
        controller.showWindow();
        EXPECT_LE((window.geometry().center() - middle).manhattanLength(), 2);
        EXPECT_EQ(bar.value(), 0);
        window.move(5, 7);
        bar.setValue(90);
        controller.showWindow();
        EXPECT_EQ(window.pos(), QPoint(5, 7)) << "It is there already.";
        EXPECT_EQ(bar.value(), 90);
        pressKey(*controller.textView(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    }
}

}  // namespace
}  // namespace tonquil
