// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "windows/panel/PanelSliders.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace tonquil {

class ChannelStrip;
class EditablePlot;
class FormChevron;
class TitleStrip;
class TQVibrantMatrix;

/// The content of the panel, laid out from the top: first what both forms show, then what only the
/// advanced form shows. Its owner provides the behaviour.
class PanelContents : public QWidget {
 public:
    PanelContents(QMenu& menu, QWidget* parent);

    /// The end of the compact form, in points from the upper edge.
    [[nodiscard]] int compactHeight() const;
    [[nodiscard]] int advancedHeight() const;
    /// Resizes to the height of the advanced form and redoes the layout.
    void fit();
    void showTab(int tab) const;
    /// A control's rectangle relative to this object's upper left corner, in points; correct even
    /// before the panel was first shown.
    [[nodiscard]] QRect placeOf(const QWidget& control) const;

    PanelSliders sliders;
    TitleStrip* titleStrip;
    TQVibrantMatrix* gammaTabSelector;
    /// Each tab's master row, and each tab's colour rows.
    QStackedWidget* gammaTabs;
    QStackedWidget* gammaTabColours;
    QCheckBox* applyCorrectionBox;
    QToolButton* compareButton;
    QToolButton* resetButton;
    QToolButton* colorTargetButton;
    QLabel* hint;
    ChannelStrip* channelStrip;
    EditablePlot* plot;
    FormChevron* chevron;
    QLabel* blendingLabel;
    QComboBox* blendingModePopUp;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    [[nodiscard]] QWidget* makeApplyRow();
    [[nodiscard]] QWidget* makeBlendingRow();
    [[nodiscard]] static QLabel* makeHint();
    void nameControls() const;

    QWidget* _compact;
    QWidget* _advanced;
};

}  // namespace tonquil
