// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTextDocument>
#include <functional>
#include <memory>
#include <tuple>

#include "tests/files/FolderContents.h"
#include "tests/ui/Input.h"
#include "windows/about/AboutTexts.h"
#include "windows/about/AboutWindow.h"
#include "windows/about/KVAboutBoxBackground.h"
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

/// The text that the window shows, a line for each paragraph.
std::string textOf(KVAboutBoxController& controller) {
    (void)controller.window();
    return controller.textView()->toPlainText().toStdString();
}

class AboutBoxTest : public testing::Test {
 protected:
    [[nodiscard]] QString credits(const std::string& html) const {
        const auto file = _folder / "Credits.html";
        putContents(file, html);
        return QString::fromStdString(file.native());
    }

 private:
    ScratchFolder _folder;
};

TEST_F(AboutBoxTest, ShowsTheBuildOnlyWhereItIsNotTheVersion) {
    const std::vector<std::tuple<std::string, std::string, QString>> rows = {
        {"6.2", "6204", QStringLiteral("Version 6.2 (6204)")},
        {"6.2", "6.2", QStringLiteral("Version 6.2")},
        {"", "", QStringLiteral("Version ")}};
    for (const auto& [version, build, line] : rows) {
        BundleInformation information = ourselves();
        information.shortVersion = version;
        information.build = build;
        EXPECT_EQ(versionLine(information), line) << version;
    }
}

TEST_F(AboutBoxTest, FillsTheTemplateTheSameWayEachTime) {
    const QString file = credits("<p>To <b>App</b>, with thanks</p><p>Version</p>");
    BundleInformation information = ourselves();
    information.copyright = "Copyright of App and Credits";
    information.name = "Version and Credits";
    KVAboutBoxController controller(information, file);
    const std::string expected =
        "Version and Credits\nVersion 6.2 (6204)\nCopyright of App and Credits\n"
        "To App, with thanks\nVersion";
    EXPECT_EQ(textOf(controller), expected);
    controller.updateText();
    EXPECT_EQ(textOf(controller), expected);

    information.name.reset();
    information.copyright.reset();
    KVAboutBoxController bare(information, QStringLiteral("/nowhere/Credits.html"));
    EXPECT_EQ(textOf(bare), "tonquil\nVersion 6.2 (6204)\n\n");
}

TEST_F(AboutBoxTest, SetsNameAndVersionInTheDesktopsFontAtThePlacesOwnSizes) {
    QTextDocument pattern;
    pattern.setHtml(
        QStringLiteral("<p style='font: 31pt monospace'>App</p>"
                       "<p style='font: bold 17pt monospace'>Version</p>"
                       "<p style='font: 9pt monospace'>Copyright</p><p>Credits</p>"));
    const auto filled = filledTemplate(pattern, ourselves(), {});
    const QString system = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    const std::vector<std::tuple<QString, double, bool, QString>> rows = {
        {QStringLiteral("Tonquil"), 31, true, system},
        {QStringLiteral("Version 6.2 (6204)"), 17, false, system},
        {QStringLiteral("Copyright 2026"), 9, false, QStringLiteral("monospace")}};
    for (const auto& [text, size, isBold, family] : rows) {
        SCOPED_TRACE(text.toStdString());
        const QTextCursor place = filled->find(text);
        ASSERT_FALSE(place.isNull());
        const QFont font = place.charFormat().font();
        EXPECT_EQ(font.pointSizeF(), size);
        EXPECT_EQ(font.bold(), isBold);
        EXPECT_EQ(font.family(), family);
    }
}

TEST_F(AboutBoxTest, ReadsTheCreditsInTheirEncodingAndReplacesOneFontName) {
    EXPECT_EQ(creditsDocument(credits("<meta charset='iso-8859-1'><p>Lucida Grande, \xE9, "
                                      "Lucida Grande</p>"))
                  .toPlainText(),
              QString::fromUtf8("Helvetica Neue, \xC3\xA9, Lucida Grande"));
    EXPECT_EQ(creditsDocument(credits("<p>\xC3\xA9</p>")).toPlainText(),
              QString::fromUtf8("\xC3\xA9"));
    KVAboutBoxController controller(ourselves());
    EXPECT_NE(textOf(controller).find("MIT licence"), std::string::npos);
}

TEST_F(AboutBoxTest, LetsTheTextScrollToTheEdgesAndStayInItsPlace) {
    const AboutWindow before;
    KVAboutBoxController controller(ourselves());
    AboutWindow& window = controller.window();
    const KVAboutBoxScrollView& text = *controller.textView();
    EXPECT_EQ(text.geometry().top(), 0);
    EXPECT_EQ(text.geometry().bottom(), window.rect().bottom());
    EXPECT_EQ(text.geometry().right(), window.rect().right());
    const auto start = [](const KVAboutBoxScrollView& view) {
        QTextCursor first(view.document());
        return view.viewport()->mapTo(view.window(), view.cursorRect(first).topLeft());
    };
    EXPECT_EQ(start(text), start(*before.textView()));
    controller.updateText();
    EXPECT_EQ(start(text), start(*before.textView()));
}

TEST_F(AboutBoxTest, OpensInTheMiddleAtTheBeginningAndClosesByEscape) {
    std::string lines;
    for (int line = 0; line < 200; ++line) {
        lines += "<p>A line</p>";
    }
    const std::unique_ptr<QStyle> style(QStyleFactory::create(QStringLiteral("Windows")));
    KVAboutBoxController controller(ourselves(), credits(lines));
    AboutWindow& window = controller.window();
    controller.showWindow();
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LE((window.geometry().center() - middle).manhattanLength(), 2);

    QScrollBar& bar = *controller.textView()->verticalScrollBar();
    ASSERT_GT(bar.maximum(), 100);
    window.move(5, 7);
    bar.setValue(90);
    controller.showWindow();
    EXPECT_EQ(window.pos(), QPoint(5, 7));
    EXPECT_EQ(bar.value(), 90);
    controller.textView()->setStyle(style.get());
    EXPECT_EQ(bar.value(), 90);

    pressKey(*controller.textView(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    controller.showWindow();
    EXPECT_EQ(bar.value(), 0);
    EXPECT_LE((window.geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(AboutBoxTest, HasAGradientBehindItOnlyWhileItsWindowIsActive) {
    const QColor former = KVAboutBoxBackground::backgroundColor();
    KVAboutBoxBackground background;
    background.resize(20, 101);
    const auto at = [&](int y) { return background.grab().toImage().pixelColor(10, y); };
    EXPECT_EQ(at(0), at(100));
    EXPECT_NEAR(at(0).redF(), 0.95, 0.005);

    KVAboutBoxBackground::setBackgroundColor(QColor(248, 234, 198));
    EXPECT_EQ(at(50), QColor(252, 245, 227));
    present(background);
    ASSERT_TRUE(background.isActiveWindow());
    EXPECT_TRUE(isNear(at(0), Qt::white));
    EXPECT_TRUE(isNear(at(50), QColor(252, 245, 227)));
    EXPECT_TRUE(isNear(at(100), QColor(248, 234, 198)));
    KVAboutBoxBackground::setBackgroundColor(former);
}

class CountedBackground final : public KVAboutBoxBackground {
 public:
    using KVAboutBoxBackground::KVAboutBoxBackground;
    int redraws = 0;

 protected:
    void paintEvent(QPaintEvent* event) override {
        KVAboutBoxBackground::paintEvent(event);
        redraws += event->rect() == rect() ? 1 : 0;
    }
};

TEST_F(AboutBoxTest, DrawsItsBackgroundAnewWhenItsWindowIsActiveAndWhenNoLonger) {
    QWidget other;
    QWidget former;
    QWidget window;
    window.resize(80, 60);
    CountedBackground background(&former);
    background.resize(80, 60);
    present(former);
    background.setParent(&window);
    background.show();
    const auto redrawsBy = [&background](const std::function<void()>& act) {
        QApplication::processEvents();
        const int before = background.redraws;
        act();
        // One round for the windows to learn of it, and one to draw.
        QApplication::processEvents();
        QApplication::processEvents();
        return background.redraws - before;
    };
    present(window);
    EXPECT_EQ(redrawsBy([&] { present(other); }), 1);
    EXPECT_EQ(redrawsBy([&] { window.activateWindow(); }), 1);
    EXPECT_EQ(redrawsBy([&] { other.activateWindow(); }), 1);
    EXPECT_EQ(redrawsBy([&] { former.activateWindow(); }), 0);
}

}  // namespace
}  // namespace tonquil
