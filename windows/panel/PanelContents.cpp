// SPDX-License-Identifier: MIT
#include "windows/panel/PanelContents.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStackedWidget>
#include <QToolButton>
#include <algorithm>
#include <vector>

#include "model/KVGammaCurve.h"
#include "ui/EditablePlot.h"
#include "ui/TQSlider.h"
#include "ui/TQVibrantLabel.h"
#include "ui/TQVibrantMatrix.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"
#include "windows/panel/ChannelStrip.h"
#include "windows/panel/FormChevron.h"
#include "windows/panel/PanelIcons.h"
#include "windows/panel/TitleStrip.h"

namespace tonquil {

namespace {

constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int panelWidth = 320;
constexpr int plotHeight = 212;

QStackedWidget* makeTabs(const PanelSliders& sliders, std::initializer_list<Channel> channels) {
    auto* tabs = new QStackedWidget;
    for (int tab = 0; tab < PanelSliders::tabCount; ++tab) {
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(4);
        for (const Channel channel : channels) {
            layout->addWidget(sliders.row(tab, channel).widget);
        }
        tabs->addWidget(page);
    }
    return tabs;
}

}  // namespace

PanelContents::PanelContents(QMenu& menu, QWidget* parent)
    : QWidget(parent),
      titleStrip(new TitleStrip(menu)),
      gammaTabSelector(new TQVibrantMatrix({tabTitle(0), tabTitle(1), tabTitle(2)})),
      gammaTabs(makeTabs(sliders, {Channel::Master})),
      gammaTabColours(makeTabs(sliders, {Channel::Red, Channel::Green, Channel::Blue})),
      applyCorrectionBox(new QCheckBox(QCoreApplication::translate("Panel", "Apply correction"))),
      compareButton(new QToolButton),
      resetButton(new QToolButton),
      colorTargetButton(new QToolButton),
      hint(makeHint()),
      channelStrip(new ChannelStrip(sliders)),
      plot(new EditablePlot),
      chevron(new FormChevron(this)),
      blendingLabel(new TQVibrantLabel(QCoreApplication::translate("Panel", "Blending"))),
      blendingModePopUp(new QComboBox),
      _compact(new QWidget),
      _advanced(new QWidget) {
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(titleStrip);
    whole->addWidget(_compact);
    whole->addWidget(_advanced);

    auto* compact = new QVBoxLayout(_compact);
    // The tabs are drawn a point below their upper edge.
    compact->setContentsMargins(margin, spacing - 1, margin, chevron->height() + 2);
    compact->setSpacing(spacing);
    compact->addWidget(gammaTabSelector);
    compact->addWidget(gammaTabs);
    compact->addWidget(makeApplyRow());
    compact->addWidget(hint);
    compact->addWidget(channelStrip);
    channelStrip->hide();

    auto* advanced = new QVBoxLayout(_advanced);
    advanced->setContentsMargins(margin, margin, margin, margin);
    advanced->setSpacing(spacing);
    advanced->addWidget(gammaTabColours);
    plot->setFixedHeight(plotHeight);
    advanced->addWidget(plot);
    advanced->addWidget(makeBlendingRow());

    setTabOrder(colorTargetButton, chevron);
    setFixedWidth(std::max(panelWidth, _compact->minimumSizeHint().width()));
    nameControls();
}

void PanelContents::nameControls() const {
    gammaTabSelector->setAccessibleName(QCoreApplication::translate("Panel", "Point"));
    gammaTabSelector->setAccessibleDescription(
        QCoreApplication::translate("Panel", "Which point of the curve the sliders move."));
    plot->setAccessibleName(QCoreApplication::translate("Panel", "Transfer curves"));
    applyCorrectionBox->setAccessibleDescription(QCoreApplication::translate(
        "Panel", "Whether the displays show their curves or their own calibration."));
}

QWidget* PanelContents::makeApplyRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    row->setFixedHeight(std::max(24, fontMetrics().height() + 4));
    const QString compare =
        QCoreApplication::translate("Panel", "Hold to compare with the uncorrected display");
    compareButton->setIcon(panelIcon(PanelIcon::Compare));
    compareButton->setAutoRaise(true);
    compareButton->setFixedSize(24, 24);
    compareButton->setToolTip(compare);
    compareButton->setAccessibleName(compare);
    const QString reset = QCoreApplication::translate("Panel", "Reset to calibration");
    resetButton->setIcon(panelIcon(PanelIcon::Reset));
    resetButton->setAutoRaise(true);
    resetButton->setFixedSize(24, 24);
    resetButton->setToolTip(reset);
    resetButton->setAccessibleName(reset);
    resetButton->setAccessibleDescription(QCoreApplication::translate(
        "Panel", "Gives every display its own calibration back and makes the curves neutral."));
    layout->addWidget(applyCorrectionBox);
    layout->addStretch(1);
    const QString targets = QCoreApplication::translate("Panel", "Show targets");
    colorTargetButton->setIcon(panelIcon(PanelIcon::Targets));
    colorTargetButton->setAutoRaise(true);
    colorTargetButton->setFixedSize(24, 24);
    colorTargetButton->setToolTip(targets);
    colorTargetButton->setAccessibleName(targets);
    colorTargetButton->setAccessibleDescription(QCoreApplication::translate(
        "Panel", "Opens the window of test patterns to look at while the sliders move."));
    layout->addWidget(compareButton);
    layout->addWidget(resetButton);
    layout->addWidget(colorTargetButton);
    return row;
}

QLabel* PanelContents::makeHint() {
    auto* label = new TQVibrantLabel(QCoreApplication::translate(
        "Panel",
        "Corrects this display. Show targets and move the slider until stripes look plain."));
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setFixedHeight(label->heightForWidth(panelWidth - 2 * margin));
    label->hide();
    return label;
}

QWidget* PanelContents::makeBlendingRow() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    blendingLabel->setBuddy(blendingModePopUp);
    blendingModePopUp->addItem(QCoreApplication::translate("Panel", "Over calibration"),
                               static_cast<int>(KVBlendingModeBaseTable));
    blendingModePopUp->addItem(QCoreApplication::translate("Panel", "Absolute"),
                               static_cast<int>(KVBlendingModeAbsolute));
    blendingModePopUp->setFixedHeight(std::max(24, fontMetrics().height() + 8));
    blendingModePopUp->setAccessibleName(QCoreApplication::translate("Panel", "Blending"));
    blendingModePopUp->setAccessibleDescription(QCoreApplication::translate(
        "Panel", "Whether the curve is laid over the display's calibration or replaces it."));
    layout->addWidget(blendingLabel);
    layout->addStretch(1);
    layout->addWidget(blendingModePopUp);
    return row;
}

int PanelContents::compactHeight() const {
    return titleStrip->sizeHint().expandedTo(titleStrip->minimumSize()).height() +
           _compact->sizeHint().height();
}

int PanelContents::advancedHeight() const {
    return compactHeight() + _advanced->sizeHint().height();
}

void PanelContents::fit() {
    // A child that was just shown or hidden has only invalidated its own layout so far.
    layout()->invalidate();
    resize(width(), advancedHeight());
    layout()->activate();
    chevron->move((width() - chevron->width()) / 2, compactHeight() - chevron->height());
    chevron->raise();
}

// Qt runs nested layouts only when the window is shown, and those of a page only when the page is
// shown.
QRect PanelContents::placeOf(const QWidget& control) const {
    std::vector<QLayout*> layouts;
    for (const QWidget* outer = control.parentWidget(); outer != parentWidget();
         outer = outer->parentWidget()) {
        if (QLayout* layout = outer->layout()) {
            layouts.push_back(layout);
        }
    }
    std::for_each(layouts.rbegin(), layouts.rend(), [](QLayout* each) {
        each->invalidate();
        each->activate();
    });
    return {control.mapTo(this, QPoint()), control.size()};
}

void PanelContents::showTab(int tab) const {
    gammaTabSelector->setSelectedColumn(tab);
    gammaTabs->setCurrentIndex(tab);
    gammaTabColours->setCurrentIndex(tab);
    channelStrip->showTab(tab);
}

void PanelContents::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    drawHairline(painter, 0, _advanced->y(), width(), Qt::Horizontal, themeOf(*this).hairline);
}

}  // namespace tonquil
