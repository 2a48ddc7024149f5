// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QAccessible>
#include <vector>

#include "ui/CurvePlot.h"
#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"

namespace tonquil {
namespace {

TEST(AccessibilityTest, OffersASliderWithItsValue) {
    TQSlider slider;
    slider.setRange(-1, 2);
    slider.setAccessibleName(QStringLiteral("Red, white point"));
    std::vector<float> sent;
    slider.setAction([&sent](TQSlider& sender) { sent.push_back(sender.floatValue()); });
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Slider);
    EXPECT_EQ(found->text(QAccessible::Name), slider.accessibleName());
    QAccessibleValueInterface* value = found->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toDouble(), -1);
    EXPECT_EQ(value->maximumValue().toDouble(), 2);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 0.01);
    value->setCurrentValue(0.25);
    value->setCurrentValue(99.0);
    value->setCurrentValue(QStringLiteral("much"));
    EXPECT_THAT(sent, testing::ElementsAre(0.25F, 2));
    EXPECT_EQ(value->currentValue().toDouble(), 2);
    EXPECT_EQ(found->text(QAccessible::Value), QStringLiteral("2.00"));
}

TEST(AccessibilityTest, OffersTabsThatCanBePicked) {
    TQVibrantMatrix tabs({QStringLiteral("Black"), QStringLiteral("White")});
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(&tabs);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->role(), QAccessible::PageTabList);
    ASSERT_EQ(row->childCount(), 2);
    QAccessibleInterface* white = row->child(1);
    EXPECT_EQ(white->role(), QAccessible::PageTab);
    EXPECT_EQ(white->text(QAccessible::Name), QStringLiteral("White"));
    EXPECT_FALSE(white->state().checked);
    white->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(white->state().checked);
    EXPECT_FALSE(row->child(0)->state().selected);
    EXPECT_EQ(tabs.selectedColumn(), 1);
}

TEST(AccessibilityTest, TellsWhatThePlotShows) {
    CurvePlot plot;
    const std::vector<float> falling = {1, 0};
    plot.setCurves({falling, falling, falling});
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&plot);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Chart);
    EXPECT_TRUE(found->text(QAccessible::Description).contains(u"Red: 1.00, 0.50, 0.00."));
}

}  // namespace
}  // namespace tonquil
