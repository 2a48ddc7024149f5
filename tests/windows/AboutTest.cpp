// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QTextDocument>

#include "platform/missing/MissingWindowSystem.h"
#include "tests/files/FolderContents.h"
#include "windows/about/AboutTexts.h"
#include "windows/about/AboutWindow.h"
#include "windows/about/KVAboutBoxController.h"
#include "windows/about/KVAboutBoxScrollView.h"

namespace tonquil {
namespace {

TEST(AboutBox, FillsTheTemplateTheSameWayEachTimeAndReadsTheCreditsInTheirEncoding) {
    const ScratchFolder folder;
    const auto credits = [&](const std::string& html) {
        putContents(folder / "Credits.html", html);
        return QString::fromStdString((folder / "Credits.html").native());
    };
    MissingWindowSystem windowSystem;
    BundleInformation information{.path = "/usr/bin/tonquil",
                                  .name = "Version and Credits",
                                  .shortVersion = "6.2",
                                  .build = "6204",
                                  .copyright = "Copyright of App and Credits"};
    KVAboutBoxController controller(information, windowSystem,
                                    credits("<p>To <b>App</b>, with thanks</p><p>Version</p>"));
    (void)controller.window();
    for (int count = 0; count < 2; ++count) {
        EXPECT_EQ(controller.textView()->toPlainText().toStdString(),
                  "Version and Credits\nVersion 6.2 (6204)\nCopyright of App and Credits\n"
                  "To App, with thanks\nVersion");
        controller.updateText();
    }
    information.name.reset();
    information.copyright.reset();
    information.build = "6.2";
    KVAboutBoxController bare(information, windowSystem, QStringLiteral("/nowhere/Credits.html"));
    (void)bare.window();
    EXPECT_EQ(bare.textView()->toPlainText().toStdString(), "tonquil\nVersion 6.2\n\n");
    for (const auto* html : {"<meta charset='iso-8859-1'><p>\xE9</p>", "<p>\xC3\xA9</p>"}) {
        EXPECT_EQ(creditsDocument(credits(html)).toPlainText(), QString::fromUtf8("\xC3\xA9"));
    }
}

}  // namespace
}  // namespace tonquil
