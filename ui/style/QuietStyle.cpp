// SPDX-License-Identifier: MIT
#include "ui/style/QuietStyle.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFocusEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>

#include "ui/style/ChoiceLook.h"
#include "ui/style/MenuLook.h"
#include "ui/style/ScrollBarLook.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

// In points.
constexpr double ringWidth = 2;
constexpr double flatRadius = 4;
constexpr int comboPadding = 8;
/// With the padding around it.
constexpr int comboArrow = 24;
constexpr int choiceHeight = 24;
/// For the tick of the chosen entry, and the padding around the entries.
constexpr int listWidening = 28;

constexpr const char* focusProperty = "tonquilShowsFocus";

const Theme& themeUnder(const QWidget* widget) {
    return widget != nullptr ? themeOf(*widget) : themeFor(applicationAppearance());
}

bool showsFocus(const QStyleOption& option, const QWidget* widget) {
    return option.state.testFlag(QStyle::State_HasFocus) && widget != nullptr &&
           widget->property(focusProperty).toBool();
}

bool isDropDown(const QWidget* widget) {
    return widget != nullptr && widget->inherits("QComboBoxPrivateContainer");
}

/// Pressed and selected buttons have another fill.
void drawBevel(QPainter& painter, const QStyleOptionButton& option, const Theme& theme) {
    const bool isDefault = option.features.testFlag(QStyleOptionButton::DefaultButton);
    const bool isOn = option.state.testFlag(QStyle::State_On);
    const bool isDark = theme.panel.lightness() < theme.text.lightness();
    fillRounded(painter, option.rect, fieldRadius,
                isOn        ? (isDark ? theme.selection : theme.field)
                : isDefault ? theme.selection
                            : theme.button);
    if (isOn) {
        drawRoundedFrame(painter, option.rect, fieldRadius, 0, theme.hairline);
    }
    if (option.state.testFlag(QStyle::State_Sunken)) {
        fillRounded(painter, option.rect, fieldRadius, theme.track);
    }
}

void drawPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget* widget) {
    const Theme& theme = themeUnder(widget);
    const bool hasRing = showsFocus(option, widget);
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : disabledOpacity);
    drawBevel(painter, option, theme);
    drawRoundedFrame(painter, option.rect, fieldRadius, hasRing ? ringWidth : 0,
                     hasRing ? theme.focusRing : theme.hairline);
    painter.setPen(theme.text);
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
}

void drawComboBox(QPainter& painter, const QStyleOptionComboBox& option, const QWidget* widget) {
    const Theme& theme = themeUnder(widget);
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : disabledOpacity);
    drawField(painter, option.rect, theme, showsFocus(option, widget));
    painter.setPen(theme.secondaryText);
    const auto end = QStyle::visualAlignment(option.direction, Qt::AlignRight | Qt::AlignVCenter);
    painter.drawText(option.rect.adjusted(comboPadding, 0, -comboPadding, 0),
                     static_cast<int>(end.toInt()), QStringLiteral("\u25BE"));
}

void drawComboBoxText(QPainter& painter, const QStyleOptionComboBox& option,
                      const QWidget* widget) {
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : disabledOpacity);
    painter.setPen(themeUnder(widget).text);
    const auto start = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    const int left = option.direction == Qt::RightToLeft ? comboArrow : comboPadding;
    const QRect room = option.rect.adjusted(left, 0, left - comboArrow - comboPadding, 0);
    painter.drawText(
        room, static_cast<int>(start.toInt()),
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, room.width()));
}

}  // namespace

QuietStyle::QuietStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void QuietStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->inherits("QMenu") || widget->inherits("QTipLabel") || isDropDown(widget)) {
        // Round corners need this, and it must be set before the window is created.
        widget->setAttribute(Qt::WA_TranslucentBackground);
    }
    if (qobject_cast<QAbstractButton*>(widget) != nullptr ||
        qobject_cast<QComboBox*>(widget) != nullptr) {
        widget->installEventFilter(this);
    }
}

// An opening dialog sends its first control a focus event with the Tab key as the reason, before
// the control has the focus.
bool QuietStyle::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && static_cast<const QWidget*>(watched)->hasFocus()) {
        const auto reason = static_cast<const QFocusEvent*>(event)->reason();
        watched->setProperty(focusProperty,
                             isFocusShown(reason, watched->property(focusProperty).toBool()));
    } else if (event->type() == QEvent::MouseButtonPress) {
        watched->setProperty(focusProperty, false);
    }
    return QProxyStyle::eventFilter(watched, event);
}

int QuietStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
    switch (hint) {
        case SH_EtchDisabledText:
            // Disabled text is fainter, which an etched shadow would counteract.
        case SH_ToolTip_Mask:
        case SH_Menu_Mask:
            return 0;
        case SH_ToolTipLabel_Opacity:
            return 255;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int QuietStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
        case PM_MenuHMargin:
            return menuPadding;
        case PM_MenuVMargin:
            // A drop-down list has it as its frame.
            return qobject_cast<const QComboBox*>(widget) != nullptr ? 0 : menuPadding;
        case PM_MenuPanelWidth:
            return 0;
        case PM_ToolTipLabelFrameWidth:
            return menuPadding - 1;  // The label adds a margin of 1.
        case PM_DefaultFrameWidth:
            return isDropDown(widget) ? menuPadding
                                      : QProxyStyle::pixelMetric(metric, option, widget);
        case PM_ScrollBarExtent:
            return scrollBarExtent;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize QuietStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
    if (const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        type == CT_MenuItem && entry != nullptr) {
        return menuEntrySize(*entry, contents);
    }
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ComboBox) {
        return {contents.width() + 2 * comboPadding + comboArrow, size.height()};
    }
    const bool isChoice = type == CT_CheckBox || type == CT_RadioButton;
    return isChoice ? size.expandedTo({0, choiceHeight}) : size;
}

QRect QuietStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && bar != nullptr) {
        return scrollBarPart(*bar, part);
    }
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_ComboBox && part == SC_ComboBoxListBoxPopup) {
        const bool isMirrored = option->direction == Qt::RightToLeft;
        return rect.adjusted(isMirrored ? 0 : -listWidening, 0, isMirrored ? listWidening : 0, 0);
    }
    return rect;
}

void QuietStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const Theme& theme = themeUnder(widget);
    const bool isOn = (option->state & (State_On | State_Sunken)) != 0;
    switch (element) {
        case PE_PanelMenu:
        case PE_PanelTipLabel:
            drawPopUpPanel(*painter, option->rect, theme, applicationAppearance().allowsVibrancy);
            break;
        case PE_FrameMenu:
            break;
        case PE_PanelButtonTool:
            if (isOn || (option->state & State_MouseOver) != 0) {
                fillRounded(*painter, option->rect, flatRadius, theme.highlight);
            }
            if ((option->state & State_Sunken) != 0) {
                fillRounded(*painter, option->rect, flatRadius, theme.highlight);
            }
            break;
        case PE_FrameFocusRect:
            if (showsFocus(*option, widget)) {
                drawRoundedFrame(*painter, widget->rect(), fieldRadius, ringWidth, theme.focusRing);
            }
            break;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

// The painter's opacity dims all of a disabled choice; the style would dim its text once more.
void QuietStyle::drawChoice(QPainter& painter, const QStyleOptionButton& option,
                            const QWidget& widget) const {
    const bool isRound = qobject_cast<const QRadioButton*>(&widget) != nullptr;
    painter.setOpacity(option.state.testFlag(State_Enabled) ? 1 : disabledOpacity);
    drawChoiceBox(painter,
                  {.frame = subElementRect(isRound ? SE_RadioButtonIndicator : SE_CheckBoxIndicator,
                                           &option, &widget),
                   .isRound = isRound,
                   .isChecked = option.state.testFlag(State_On),
                   .isDown = option.state.testFlag(State_Sunken),
                   .hasFocusRing = showsFocus(option, &widget)},
                  themeOf(widget));
    QStyleOptionButton label = option;
    label.rect =
        subElementRect(isRound ? SE_RadioButtonContents : SE_CheckBoxContents, &option, &widget);
    label.state |= State_Enabled;
    label.palette.setCurrentColorGroup(QPalette::Active);
    drawControl(isRound ? CE_RadioButtonLabel : CE_CheckBoxLabel, &label, &painter, &widget);
}

void QuietStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    painter->save();
    if (element == CE_MenuItem && entry != nullptr) {
        drawMenuEntry(*painter, *entry, themeUnder(widget),
                      qobject_cast<const QComboBox*>(widget) != nullptr);
    } else if (element == CE_PushButton && button != nullptr) {
        drawPushButton(*painter, *button, widget);
    } else if (element == CE_PushButtonBevel && button != nullptr) {
        drawBevel(*painter, *button, themeUnder(widget));
    } else if (element == CE_ComboBoxLabel && combo != nullptr) {
        drawComboBoxText(*painter, *combo, widget);
    } else if ((element == CE_CheckBox || element == CE_RadioButton) && button != nullptr &&
               widget != nullptr) {
        drawChoice(*painter, *button, *widget);
    } else if (element != CE_MenuEmptyArea && (element != CE_ShapedFrame || !isDropDown(widget))) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    painter->restore();
}

void QuietStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    painter->save();
    if (control == CC_ScrollBar && bar != nullptr) {
        drawScrollBar(*painter, *bar, themeUnder(widget));
    } else if (control == CC_ComboBox && combo != nullptr) {
        drawComboBox(*painter, *combo, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    painter->restore();
}

}  // namespace tonquil
