// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "windows/panel/PanelSliders.h"

class QCheckBox;
class QComboBox;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace tonquil {

class ChannelStrip;
class CurvePlot;
class TitleStrip;
class TQVibrantMatrix;

/// Everything in the panel, laid out from its upper edge down: first what both forms show, then
/// what only the advanced form does. What it does is up to its owner.
class PanelContents : public QWidget {
 public:
    PanelContents(QMenu& menu, QWidget* parent);

    /// Where the compact form ends, in points from the upper edge.
    [[nodiscard]] int compactHeight() const;
    [[nodiscard]] int advancedHeight() const;
    /// Takes the height of the advanced form, and lays everything out anew.
    void fit();
    void showTab(int tab) const;
    /// A control's place from this object's upper left corner, in points; right also before the
    /// panel has ever been shown.
    [[nodiscard]] QRect placeOf(const QWidget& control) const;

    PanelSliders sliders;
    TitleStrip* titleStrip;
    TQVibrantMatrix* gammaTabSelector;
    /// The master's row of each tab, and the colours'.
    QStackedWidget* gammaTabs;
    QStackedWidget* gammaTabColours;
    QCheckBox* applyCorrectionBox;
    QToolButton* resetButton;
    QToolButton* colorTargetButton;
    ChannelStrip* channelStrip;
    CurvePlot* plot;
    QComboBox* blendingModePopUp;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    [[nodiscard]] QWidget* makeApplyRow();
    [[nodiscard]] QWidget* makeBlendingRow();
    void nameControls() const;
    void updateIcons();

    QWidget* _compact;
    QWidget* _advanced;
};

}  // namespace tonquil
