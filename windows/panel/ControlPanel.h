// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>
#include <optional>
#include <vector>

#include "app/panel/PanelActions.h"
#include "app/panel/PanelControls.h"
#include "app/panel/PanelWindow.h"
#include "app/panel/WindowSystem.h"
#include "foundation/Problem.h"
#include "ui/theme/Appearance.h"
#include "windows/menus/PanelMenu.h"
#include "windows/panel/PanelContents.h"
#include "windows/panel/PlotEditing.h"

namespace tonquil {

/// The control panel: a floating window of sliders that can be used without taking the keyboard
/// focus from the program in front. Only a click on a number field takes it.
class ControlPanel final : public QWidget, public PanelControls, public PanelWindow {
 public:
    /// The window system must outlive the panel.
    explicit ControlPanel(WindowSystem& windowSystem);
    ~ControlPanel() override;
    Q_DISABLE_COPY_MOVE(ControlPanel)

    /// Receives the user's actions. Set before the panel is shown; must outlive the panel's use.
    void setActions(PanelActions& actions);
    void showWebSites(bool hasSite, bool hasBoardSite) {
        _menu.showWebSites(hasSite, hasBoardSite);
    }
    /// Indicates unobtrusively that changes cannot be saved, and why; nothing removes the sign.
    void showStorageProblem(const std::optional<Problem>& problem);
    /// The user's desktop-wide accessibility settings.
    void setAccessibilityOptions(const AccessibilityOptions& options);
    /// Call when compositing may have been switched on or off.
    void updateCompositing();

    [[nodiscard]] PanelValues values() const override;
    void setValues(const PanelValues& values) override;
    void revertTyping() override { _contents->sliders.revertTyping(); }
    void letGo() override;
    void setSlider(PanelSlider slider, float value) override;
    void selectBlendingMode(std::int32_t blendingMode) override;
    void updateTouchBarSlider() override;
    void _setControlsEnabled(bool enabled) override;
    void showCorrection(bool isOn) override;
    void showSubject(const PanelSubject& subject) override;
    void updatePlot() override;
    void showUndo(bool canUndo, bool canRedo) override;

    [[nodiscard]] bool isPlacedByDesktop() const override;
    [[nodiscard]] Rectangle frame() const override;
    void setFrameOrigin(const Point& origin) override;
    void makeKeyAndOrderFront() override;
    void _setAdvancedPanel(bool advanced) override;
    [[nodiscard]] bool _advancedPanel() const { return _isAdvanced; }
    void _setDarkTheme(bool dark) override;
    void showChannelStrip(bool isShown) override;
    void showFirstHint(bool isShown) override;
    void showTab(int index) override;
    void orderOut() override { hide(); }
    [[nodiscard]] bool isOrderedIn() const override { return isVisible() && !isMinimized(); }
    [[nodiscard]] bool isOnActiveWorkspace() const override;
    [[nodiscard]] PanelSliderGeometry masterSliderOfSelectedTab() const override;
    void showRemoteConfiguration(bool isOn) override;
    void focusMasterOfSelectedTab() override;
    void observeFirstResponder() override;

 protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    void connectControls();
    void moved(PanelSlider slider);
    void heldSlider(PanelSlider slider, bool isHeld);
    void connectWays();
    void compare(bool isHeld);
    /// For when the release of the button or the key may go elsewhere.
    void endComparison();
    void addKeys();
    void pickTab(int tab);
    void makeFirstResponder(QWidget& control);
    void firstResponderChanged(QWidget* control);
    [[nodiscard]] bool isCutOff(const QWidget& control) const;
    void tellMoved();
    void followScreen();
    void takeKeyboard();
    void setAcceptsKeyboard(bool accepts);
    void updateAcceptsKeyboard();
    void setAppearances();
    void fitForm(bool mayGlide);
    void setHeight(int height);
    void drawPlot();
    [[nodiscard]] std::vector<QWidget*> vibrantViews() const;

    WindowSystem& _windowSystem;
    PanelActions* _actions = nullptr;
    AccessibilityOptions _wantedOptions;
    Appearance _appearance;
    PanelMenu _menu;
    /// As high as the advanced form; the compact form clips it.
    PanelContents* _contents;
    PlotEditing _plotEditing;
    bool _isCorrected = true;
    bool _isCompared = false;
    bool _isAdvanced = true;
    int _selectedTab = 1;
    std::int32_t _blendingMode = KVBlendingModeBaseTable;
    bool _observesFirstResponder = false;
    QPointer<QWidget> _firstResponder;
    /// The window and the screen whose changes are followed where the desktop places windows.
    QPointer<QWindow> _followedWindow;
    QMetaObject::Connection _screenConnection;
    bool _isFieldUnderMouse = false;
    /// The control that had the focus before the controls were disabled; the panel itself has it
    /// meanwhile.
    QPointer<QWidget> _focusToReturn;
    QTimer _plotTimer;
    /// Ends an edit without a held button: a run of steps, or a typed number.
    QTimer _editEndTimer;
    /// Whether the pointer holds a slider, and whether it did at the last edit.
    bool _isSliderHeld = false;
    bool _wasLastEditHeld = false;
    QVariantAnimation _glide;
};

}  // namespace tonquil
