// SPDX-License-Identifier: MIT
// The panel's keys, and the ways to edit and to look besides its sliders.
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include "ui/EditablePlot.h"
#include "ui/TQSlider.h"
#include "windows/panel/ControlPanel.h"
#include "windows/panel/FormChevron.h"
#include "windows/panel/TitleStrip.h"

namespace tonquil {

void ControlPanel::connectWays() {
    _plotEditing.setActions(*_actions, *this, [this](PanelSlider slider, bool isHeld) {
        heldSlider(slider, isHeld);
        if (isHeld) {
            firstResponderChanged(&_contents->sliders.slider(slider));
        } else {
            // On the plot a second press never becomes a double-click.
            _editEndTimer.stop();
            _actions->endEdit();
        }
    });
    const auto switchForm = [this] { _actions->setAdvancedPanel(!_isAdvanced); };
    _contents->titleStrip->setActions(*_actions);
    _contents->titleStrip->setFormAction(switchForm);
    QObject::connect(_contents->chevron, &QAbstractButton::clicked, this, switchForm);
    QObject::connect(_contents->compareButton, &QToolButton::pressed, this,
                     [this] { compare(true); });
    QObject::connect(_contents->compareButton, &QToolButton::released, this,
                     [this] { compare(false); });
    _contents->plot->setSpaceBarChanged([this](bool isDown) { compare(isDown); });
}

void ControlPanel::compare(bool isHeld) {
    _isCompared = isHeld;
    _actions->compare(isHeld);
    _contents->plot->setInForce(_isCorrected && !isHeld);
}

void ControlPanel::addKeys() {
    const auto addKey = [this](const QList<QKeySequence>& keys, auto call) {
        auto* action = new QAction(this);
        action->setShortcuts(keys);
        QObject::connect(action, &QAction::triggered, this, call);
        addAction(action);
    };
    addKey({Qt::CTRL | Qt::Key_W}, [this] { close(); });
    constexpr int tabs = PanelSliders::tabCount;
    addKey({Qt::CTRL | Qt::Key_Tab}, [this] { pickTab((_selectedTab + 1) % tabs); });
    addKey({Qt::CTRL | Qt::SHIFT | Qt::Key_Tab},
           [this] { pickTab((_selectedTab + tabs - 1) % tabs); });
    for (int tab = 0; tab < tabs; ++tab) {
        addKey({Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)}, [this, tab] { pickTab(tab); });
    }
}

// A field in which something was typed keeps Escape for itself, and so does an open list; as a
// shortcut it would be taken from the list.
void ControlPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ControlPanel::showFirstHint(bool isShown) {
    if (isShown == _contents->hint->isHidden()) {
        _contents->hint->setVisible(isShown);
        fitForm(true);
    }
}

void ControlPanel::endComparison() {
    _contents->compareButton->setDown(false);
    if (_actions != nullptr) {
        compare(false);
    }
}

void ControlPanel::hideEvent(QHideEvent* event) {
    endComparison();
    QWidget::hideEvent(event);
}

}  // namespace tonquil
