// SPDX-License-Identifier: MIT
#include "ui/Accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

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

class AccessibleTab : public QAccessibleWidget {
 public:
    explicit AccessibleTab(TQTabButtonCell& tab)
        : QAccessibleWidget(&tab, QAccessible::PageTab), _tab(tab) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? _tab.text() : given;
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = _tab.isChecked();
        state.selectable = true;
        state.selected = _tab.isChecked();
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            _tab.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

 private:
    TQTabButtonCell& _tab;
};

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
    if (auto* tab = dynamic_cast<TQTabButtonCell*>(object)) {
        return new AccessibleTab(*tab);
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
