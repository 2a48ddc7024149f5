// SPDX-License-Identifier: MIT
#include "windows/preferences/PreferencesWindow.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "hotkeys/field/DDHotKeyTextField.h"
#include "ui/theme/Theme.h"
#include "windows/panel/PanelIcons.h"
#include "windows/preferences/NoteLabel.h"
#include "windows/preferences/RadioMatrix.h"

namespace tonquil {

namespace {

// In points.
constexpr int margin = 12;
constexpr int spacing = 8;
constexpr int rowSpacing = 4;
constexpr int groupSpacing = 16;
/// What a window manager takes of a screen's height, or a little more.
constexpr int titleBarHeight = 40;

/// Texts without this context would be looked up among Qt's own.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Preferences)
};

void addHeading(QVBoxLayout& column, const QString& text) {
    if (!column.isEmpty()) {
        column.addSpacing(groupSpacing);
    }
    auto* heading = new QLabel(text);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    column.addWidget(heading);
    column.addSpacing(spacing);
}

void addChecks(QVBoxLayout& column, std::initializer_list<QCheckBox*> boxes) {
    for (QCheckBox* box : boxes) {
        column.addWidget(box);
        column.addSpacing(box == *(boxes.end() - 1) ? 0 : rowSpacing);
    }
}

/// Aligns a label with the first button of its choice.
void addChoice(QGridLayout& grid, QLabel* label, RadioMatrix* matrix) {
    const int row = grid.rowCount();
    label->setMinimumHeight(matrix->cellHeight());
    matrix->setAccessibleName(label->text());
    grid.addWidget(label, row, 0, Qt::AlignTop);
    grid.addWidget(matrix, row, 1);
}

QString describedPanelKey(HotKeyChooser chooser) {
    return chooser == HotKeyChooser::Program ? Texts::tr("Show the panel under the pointer")
                                             : Texts::tr("Show the panel");
}

void addHotKey(QGridLayout& grid, QCheckBox* box, DDHotKeyTextField* field, QLabel* trigger,
               QLabel* problem) {
    const int row = grid.rowCount();
    trigger->setTextFormat(Qt::PlainText);
    field->setAccessibleName(box->text());
    problem->hide();
    grid.addWidget(box, row, 0);
    grid.addWidget(field, row, 1);
    grid.addWidget(trigger, row, 1);
    grid.addWidget(problem, row + 1, 0, 1, 2);
}

QGridLayout* addGrid(QVBoxLayout& column, int verticalSpacing) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(groupSpacing);
    grid->setVerticalSpacing(verticalSpacing);
    grid->setColumnStretch(1, 1);
    column.addLayout(grid);
    return grid;
}

}  // namespace

PreferencesWindow::PreferencesWindow(const KeyboardLayout& layout)
    : showAtLaunch(new QCheckBox(Texts::tr("Show the panel when Tonquil starts"))),
      openAtLoginCheckbox(new QCheckBox(Texts::tr("Start Tonquil at login"))),
      rememberWhenQuitting(
          new QCheckBox(Texts::tr("Correct the displays as soon as Tonquil starts"))),
      ContinuouslyApply(new QCheckBox(Texts::tr("Apply the curves again every few seconds"))),
      continuouslyApplyNote(
          new NoteLabel(NoteLabel::Kind::Note, *ContinuouslyApply,
                        Texts::tr("Not needed here: no correction is lost unnoticed."))),
      keepNightLight(new QCheckBox(Texts::tr("Keep night light"))),
      advancedPanel(new QCheckBox(Texts::tr("Show sliders for the single channels"))),
      channelStrip(new QCheckBox(Texts::tr("Show the channel strip"))),
      showTargetHints(new QCheckBox(Texts::tr("Show hints under targets"))),
      darkTheme(new QCheckBox(Texts::tr("Dark theme"))),
      affectAllScreens(
          new RadioMatrix({Texts::tr("The display under the panel"), Texts::tr("All displays")})),
      toggleApply(new RadioMatrix(
          {Texts::tr("Shows the panel"), Texts::tr("Switches the correction on or off")})),
      showStatusLabel(new QLabel(Texts::tr("Show Tonquil in:"))),
      showStatusItem(new RadioMatrix({Texts::tr("The task bar"), Texts::tr("The status area")})),
      useHotKey(new QCheckBox(Texts::tr("Switch the correction on or off"))),
      hotKeyField(new DDHotKeyTextField(layout)),
      hotKeyTrigger(new QLabel),
      hotKeyProblem(new NoteLabel(NoteLabel::Kind::Problem, *useHotKey)),
      panelHotKey(new QCheckBox(describedPanelKey(HotKeyChooser::Program))),
      panelHotKeyField(new DDHotKeyTextField(layout)),
      panelHotKeyTrigger(new QLabel),
      panelHotKeyProblem(new NoteLabel(NoteLabel::Kind::Problem, *panelHotKey)),
      changeHotKeys(new QPushButton(Texts::tr("Change in desktop\u2026"))),
      hotKeysByHand(new QLabel),
      allowRemote(
          new QCheckBox(Texts::tr("Let companions on the local network read and set the curves"))),
      remoteProblem(new NoteLabel(NoteLabel::Kind::Problem, *allowRemote)),
      _scrollArea(new QScrollArea) {
    setObjectName(QStringLiteral("Preferences"));
    setWindowTitle(Texts::tr("Preferences"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_QuitOnClose, false);
    // Takes the focus when no control should have it: otherwise the window would give it to its
    // first control.
    setFocusPolicy(Qt::ClickFocus);
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    addGeneral(*column);
    addHotKeys(*column);
    addRemote(*column);
    showHotKeyChooser(HotKeyChooser::Program);
    nameControls();
    _scrollArea->setFrameShape(QFrame::NoFrame);
    _scrollArea->setFocusPolicy(Qt::NoFocus);
    _scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _scrollArea->setWidget(contents);
    // Lets the window's own background show through.
    _scrollArea->viewport()->setAutoFillBackground(false);
    contents->setAutoFillBackground(false);
    contents->installEventFilter(this);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(_scrollArea);
    fit();
}

void PreferencesWindow::fit() {
    const QSize wanted = _scrollArea->widget()->sizeHint();
    const int most = screen()->availableGeometry().height() - titleBarHeight;
    const int barWidth =
        wanted.height() > most ? _scrollArea->verticalScrollBar()->sizeHint().width() : 0;
    setFixedSize(wanted.width() + barWidth, std::min(wanted.height(), most));
}

bool PreferencesWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
        fit();
    }
    return QWidget::eventFilter(watched, event);
}

void PreferencesWindow::showEvent(QShowEvent* event) {
    fit();
    QWidget::showEvent(event);
}

void PreferencesWindow::nameControls() {
    const std::initializer_list<std::pair<QWidget*, const char*>> names = {
        {showAtLaunch, "showAtLaunch"},
        {openAtLoginCheckbox, "openAtLoginCheckbox"},
        {rememberWhenQuitting, "rememberWhenQuitting"},
        {ContinuouslyApply, "ContinuouslyApply"},
        {continuouslyApplyNote, "continuouslyApplyNote"},
        {keepNightLight, "keepNightLight"},
        {advancedPanel, "advancedPanel"},
        {channelStrip, "channelStrip"},
        {showTargetHints, "showTargetHints"},
        {darkTheme, "darkTheme"},
        {affectAllScreens, "affectAllScreens"},
        {toggleApply, "toggleApply"},
        {showStatusLabel, "showStatusLabel"},
        {showStatusItem, "showStatusItem"},
        {useHotKey, "useHotKey"},
        {hotKeyField, "hotKeyField"},
        {hotKeyTrigger, "hotKeyTrigger"},
        {hotKeyProblem, "hotKeyProblem"},
        {panelHotKey, "panelHotKey"},
        {panelHotKeyField, "panelHotKeyField"},
        {panelHotKeyTrigger, "panelHotKeyTrigger"},
        {panelHotKeyProblem, "panelHotKeyProblem"},
        {changeHotKeys, "changeHotKeys"},
        {hotKeysByHand, "hotKeysByHand"},
        {allowRemote, "allowRemote"},
        {remoteProblem, "remoteProblem"}};
    for (const auto& [control, name] : names) {
        control->setObjectName(QString::fromLatin1(name));
    }
}

void PreferencesWindow::addGeneral(QVBoxLayout& column) const {
    addHeading(column, Texts::tr("General"));
    addChecks(column, {showAtLaunch, openAtLoginCheckbox, rememberWhenQuitting, ContinuouslyApply});
    continuouslyApplyNote->hide();
    column.addWidget(continuouslyApplyNote);
    addNightLight(column);
    column.addSpacing(groupSpacing);
    addChecks(column, {advancedPanel, channelStrip, showTargetHints, darkTheme});
    column.addSpacing(groupSpacing);
    QGridLayout& choices = *addGrid(column, spacing);
    addChoice(choices, new QLabel(Texts::tr("Edits change:")), affectAllScreens);
    addChoice(choices, new QLabel(Texts::tr("Starting Tonquil again:")), toggleApply);
    addChoice(choices, showStatusLabel, showStatusItem);
}

// The space above the box is hidden with it.
void PreferencesWindow::addNightLight(QVBoxLayout& column) const {
    auto* line = new QWidget;
    auto* lineColumn = new QVBoxLayout(line);
    lineColumn->setContentsMargins(0, rowSpacing, 0, 0);
    lineColumn->addWidget(keepNightLight);
    column.addWidget(line);
    line->hide();
}

void PreferencesWindow::showNightLight(bool isShown) const {
    keepNightLight->parentWidget()->setVisible(isShown);
}

void PreferencesWindow::addHotKeys(QVBoxLayout& column) const {
    addHeading(column, Texts::tr("Hot keys"));
    QGridLayout& grid = *addGrid(column, rowSpacing);
    addHotKey(grid, useHotKey, hotKeyField, hotKeyTrigger, hotKeyProblem);
    addHotKey(grid, panelHotKey, panelHotKeyField, panelHotKeyTrigger, panelHotKeyProblem);
    grid.addWidget(changeHotKeys, grid.rowCount(), 1, Qt::AlignLeft);
    hotKeysByHand->setTextFormat(Qt::PlainText);
    hotKeysByHand->setWordWrap(true);
    hotKeysByHand->setTextInteractionFlags(Qt::TextSelectableByMouse);
    hotKeysByHand->setText(Texts::tr("This desktop leaves hot keys to its own settings. Bind these "
                                     "commands to keys there:") +
                           QStringLiteral("\n\ntonquil --toggle\ntonquil --show-panel"));
    column.addWidget(hotKeysByHand);
}

void PreferencesWindow::showHotKeyChooser(HotKeyChooser chooser) {
    for (QWidget* widget : std::initializer_list<QWidget*>{hotKeyField, panelHotKeyField}) {
        widget->setVisible(chooser == HotKeyChooser::Program);
    }
    for (QWidget* widget :
         std::initializer_list<QWidget*>{hotKeyTrigger, panelHotKeyTrigger, changeHotKeys}) {
        widget->setVisible(chooser == HotKeyChooser::Desktop);
    }
    for (QWidget* widget : {useHotKey, panelHotKey}) {
        widget->setVisible(chooser != HotKeyChooser::Nobody);
    }
    hotKeysByHand->setVisible(chooser == HotKeyChooser::Nobody);
    panelHotKey->setText(describedPanelKey(chooser));
}

void PreferencesWindow::addRemote(QVBoxLayout& column) const {
    addHeading(column, Texts::tr("Remote"));
    addChecks(column, {allowRemote});
    column.addWidget(
        new NoteLabel(NoteLabel::Kind::Note, *allowRemote,
                      Texts::tr("There is no password: any computer there can do this.")));
    remoteProblem->setContentsMargins(0, rowSpacing, 0, 0);
    remoteProblem->hide();
    column.addWidget(remoteProblem);
}

void PreferencesWindow::clearFirstResponder() {
    setFocus(Qt::OtherFocusReason);
}

void PreferencesWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), themeOf(*this).panel);
}

void PreferencesWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) || event->matches(QKeySequence::Close)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PreferencesWindow::closeEvent(QCloseEvent* event) {
    if (_shouldClose && !_shouldClose()) {
        event->ignore();
        return;
    }
    QWidget::closeEvent(event);
    if (_closed) {
        _closed();
    }
}

}  // namespace tonquil
