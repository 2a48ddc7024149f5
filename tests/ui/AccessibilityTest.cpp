// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QAccessible>
#include <vector>

#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"

namespace tonquil {
namespace {

TEST(AccessibilityTest, OffersASliderWithItsValue) {
    TQSlider slider;
    slider.setRange(-1, 2);
    std::vector<float> sent;
    slider.setAction([&sent](TQSlider& sender) { sent.push_back(sender.floatValue()); });
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->role(), QAccessible::Slider);
    QAccessibleValueInterface* value = found->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->minimumValue().toDouble(), -1);
    EXPECT_EQ(value->maximumValue().toDouble(), 2);
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
    white->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(white->state().checked);
    EXPECT_EQ(tabs.selectedColumn(), 1);
}

}  // namespace
}  // namespace tonquil
