// SPDX-License-Identifier: MIT
#include "ui/Accessibility.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QRadioButton>

#include "ui/CurvePlot.h"
#include "ui/TQSlider.h"
#include "ui/TQTabButtonCell.h"
#include "ui/TQVibrantMatrix.h"

namespace tonquil {

namespace {

class AccessibleSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
    explicit AccessibleSlider(TQSlider& slider)
        : QAccessibleWidget(&slider, QAccessible::Slider), _slider(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface*>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) {
            return QString::number(static_cast<double>(_slider.floatValue()), 'f', 2);
        }
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QVariant currentValue() const override {
        return static_cast<double>(_slider.floatValue());
    }
    void setCurrentValue(const QVariant& value) override {
        bool isNumber = false;
        const float number = value.toFloat(&isNumber);
        if (isNumber) {
            _slider.setFloatValue(number);
            _slider.sendAction();
        }
    }
    [[nodiscard]] QVariant minimumValue() const override {
        return static_cast<double>(_slider.minValue());
    }
    [[nodiscard]] QVariant maximumValue() const override {
        return static_cast<double>(_slider.maxValue());
    }
    [[nodiscard]] QVariant minimumStepSize() const override { return TQSlider::alternateIncrement; }

 private:
    TQSlider& _slider;
};

/// A button that is on or off. The toolkit's own interface would switch it without telling anybody
/// who listens to clicks.
class AccessibleChoice : public QAccessibleWidget {
 public:
    AccessibleChoice(QAbstractButton& button, QAccessible::Role role)
        : QAccessibleWidget(&button, role), _button(button) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? _button.text() : given;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = _button.isChecked();
        if (role() == QAccessible::PageTab) {
            state.selectable = true;
            state.selected = _button.isChecked();
        }
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(ownAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == ownAction()) {
            _button.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

 private:
    [[nodiscard]] const QString& ownAction() const {
        return role() == QAccessible::PageTab ? pressAction() : toggleAction();
    }

    QAbstractButton& _button;
};

/// A drop-down list; the toolkit's own interface gives it the name of what is chosen.
class AccessibleList : public QAccessibleWidget {
 public:
    explicit AccessibleList(QComboBox& list)
        : QAccessibleWidget(&list, QAccessible::ComboBox), _list(list) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? _list.currentText() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = _list.view()->isVisible();
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(_list.view()) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == _list.view() ? 0 : -1;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name != showMenuAction()) {
            QAccessibleWidget::doAction(name);
        } else if (_list.view()->isVisible()) {
            _list.hidePopup();
        } else {
            _list.showPopup();
        }
    }

 private:
    QComboBox& _list;
};

QAccessible::Role roleOf(const QAbstractButton& choice) {
    if (dynamic_cast<const TQTabButtonCell*>(&choice) != nullptr) {
        return QAccessible::PageTab;
    }
    return dynamic_cast<const QRadioButton*>(&choice) != nullptr ? QAccessible::RadioButton
                                                                 : QAccessible::CheckBox;
}

class AccessiblePlot : public QAccessibleWidget {
 public:
    explicit AccessiblePlot(CurvePlot& plot)
        : QAccessibleWidget(&plot, QAccessible::Chart), _plot(plot) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Description && given.isEmpty() ? _plot.spokenDescription()
                                                                   : given;
    }

 private:
    CurvePlot& _plot;
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    if (auto* slider = dynamic_cast<TQSlider*>(object)) {
        return new AccessibleSlider(*slider);
    }
    if (auto* choice = dynamic_cast<QAbstractButton*>(object);
        choice != nullptr && choice->isCheckable()) {
        return new AccessibleChoice(*choice, roleOf(*choice));
    }
    if (auto* list = dynamic_cast<QComboBox*>(object); list != nullptr && !list->isEditable()) {
        return new AccessibleList(*list);
    }
    if (auto* tabs = dynamic_cast<TQVibrantMatrix*>(object)) {
        return new QAccessibleWidget(tabs, QAccessible::PageTabList);
    }
    if (auto* plot = dynamic_cast<CurvePlot*>(object)) {
        return new AccessiblePlot(*plot);
    }
    return nullptr;
}

}  // namespace

void installAccessibleInterfaces() {
    // Installing it twice would be harmless but slow down every look-up.
    static const bool isInstalled = [] {
        QAccessible::installFactory(&interfaceFor);
        return true;
    }();
    static_cast<void>(isInstalled);
}

}  // namespace tonquil
