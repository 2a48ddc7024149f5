// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/ui/Input.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantLabel.h"
#include "ui/TQVibrantMatrix.h"
#include "ui/theme/Theme.h"

namespace tonquil {
namespace {

using testing::ElementsAre;

double luminance(const QColor& colour) {
    const auto linear = [](float level) {
        return level <= 0.04045F ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double ratio = (luminance(a) + 0.05) / (luminance(b) + 0.05);
    return std::max(ratio, 1 / ratio);
}

TEST(ThemeTest, HasTextThatCanBeReadOnEachOfItsBackgrounds) {
    for (const bool isDark : {true, false}) {
        for (const bool increaseContrast : {true, false}) {
            SCOPED_TRACE(testing::Message() << isDark << increaseContrast);
            const Theme& theme =
                themeFor({.isDark = isDark, .options = {.increaseContrast = increaseContrast}});
            std::vector<QColor> texts = {theme.text, theme.secondaryText};
            for (const auto channel : {Channel::Red, Channel::Green, Channel::Blue}) {
                texts.push_back(theme.channelText(channel));
            }
            for (const QColor& text : texts) {
                EXPECT_GE(contrast(text, theme.panel), 4.5) << text.name().toStdString();
                EXPECT_GE(contrast(text, theme.field), 4.5) << text.name().toStdString();
            }
            EXPECT_GE(contrast(theme.text, theme.button), 4.5);
            EXPECT_GE(contrast(theme.text, theme.selection), 4.5);
        }
    }
}

TEST(VibrantLabelTest, DrawsItsTextLighterAndKeepsItsColour) {
    struct Row {
        Appearance appearance;
        int grey;
    };
    const AccessibilityOptions opaque = {.reduceTransparency = true};
    const std::vector<Row> rows = {
        {{.isDark = true, .allowsVibrancy = true}, 64},
        {{.isDark = true, .allowsVibrancy = true, .options = opaque}, 168},
        {{.isDark = true, .allowsVibrancy = false, .options = opaque}, 168},
        {{.isDark = true, .allowsVibrancy = false}, 0},
        {{.isDark = false, .allowsVibrancy = true}, 0},
        {{.isDark = false, .allowsVibrancy = true, .options = opaque}, 0},
    };
    // Blocks that are filled by the text's colour.
    TQVibrantLabel label(QStringLiteral("█████"));
    label.setAlignment(Qt::AlignCenter);
    label.resize(60, 24);
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.grey));
        setAppearance(label, row.appearance);
        QPalette palette = label.palette();
        palette.setColor(QPalette::WindowText, Qt::black);
        label.setPalette(palette);
        for (int drawing = 0; drawing < 2; ++drawing) {
            EXPECT_TRUE(
                isNear(drawn(label).pixelColor(30, 12), QColor(row.grey, row.grey, row.grey)))
                << drawn(label).pixelColor(30, 12).name().toStdString();
        }
        EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::black));
    }
}

TEST(TabButtonTest, IsAFlatGreyOnTheDarkTheme) {
    TQTabButtonCell tab{QString()};
    tab.resize(80, 28);
    setAppearance(tab, {});
    struct Row {
        bool isSelected;
        bool isPressed;
        int grey;
    };
    for (const Row& row :
         {Row{true, false, 51}, {true, true, 51}, {false, true, 77}, {false, false, 26}}) {
        SCOPED_TRACE(row.grey);
        tab.setChecked(row.isSelected);
        tab.setDown(row.isPressed);
        const QImage picture = drawn(tab);
        const QColor grey(row.grey, row.grey, row.grey);
        EXPECT_TRUE(isNear(picture.pixelColor(40, 1), grey));
        EXPECT_EQ(picture.pixelColor(40, 0), themeFor({}).panel);
    }
}

TEST(MatrixTest, MovesWithTheArrowKeysInReadingDirectionAndTellsOnlyOfChangesByThePerson) {
    TQVibrantMatrix tabs({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    std::vector<int> picked;
    tabs.setAction([&](int column) { picked.push_back(column); });
    present(tabs);
    tabs.cell(0)->setFocus();
    const auto press = [&](int key) { pressKey(*tabs.focusWidget(), key); };
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_TRUE(tabs.cell(2)->hasFocus());
    press(Qt::Key_Home);
    tabs.setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Left);
    tabs.cell(2)->click();
    tabs.cell(2)->click();
    EXPECT_FALSE(tabs.cell(1)->isChecked());
    for (const int column : {0, 3, -1}) {
        tabs.setSelectedColumn(column);
    }
    EXPECT_TRUE(tabs.cell(0)->isChecked());
    EXPECT_THAT(picked, ElementsAre(1, 2, 0, 1, 2));
}

}  // namespace
}  // namespace tonquil
