// SPDX-License-Identifier: MIT
#include "windows/about/KVAboutBoxController.h"

#include <QCoreApplication>
#include <QScreen>
#include <QTextDocument>
#include <utility>

#include "windows/about/AboutTexts.h"
#include "windows/about/AboutWindow.h"
#include "windows/about/KVAboutBoxIconView.h"
#include "windows/about/KVAboutBoxScrollView.h"
#include "windows/front/BringToFront.h"

// Outside any namespace, as Qt requires. A static library's resources are not registered before
// this.
static void initializeResources() {
    Q_INIT_RESOURCE(about);
}

namespace tonquil {

KVAboutBoxController::KVAboutBoxController(BundleInformation information,
                                           WindowSystem& windowSystem, QString creditsFile)
    : _information(std::move(information)),
      _windowSystem(windowSystem),
      _creditsFile(std::move(creditsFile)) {
    initializeResources();
}

KVAboutBoxController::~KVAboutBoxController() = default;

QString KVAboutBoxController::windowNibName() {
    return QStringLiteral("KVAboutBox");
}

QString KVAboutBoxController::ownCredits() {
    return QCoreApplication::translate("KVAboutBox", ":/about/Credits.html");
}

KVAboutBoxIconView* KVAboutBoxController::iconView() const {
    return _iconView;
}

void KVAboutBoxController::setIconView(KVAboutBoxIconView* iconView) {
    _iconView = iconView;
}

KVAboutBoxScrollView* KVAboutBoxController::textView() const {
    return _textView;
}

void KVAboutBoxController::setTextView(KVAboutBoxScrollView* textView) {
    _textView = textView;
}

AboutWindow& KVAboutBoxController::window() {
    if (!_window) {
        _window = std::make_unique<AboutWindow>();
        _window->setObjectName(windowNibName());
        setIconView(_window->iconView());
        setTextView(_window->textView());
        windowDidLoad();
    }
    return *_window;
}

void KVAboutBoxController::showWindow() {
    AboutWindow& shown = window();
    if (!shown.isVisible()) {
        _textView->scrollToBeginning();
        const QRect screen = shown.screen()->availableGeometry();
        shown.move(screen.center() - QPoint(shown.width() / 2, shown.height() / 2));
    }
    bringToFront(shown, _windowSystem);
}

void KVAboutBoxController::updateText() {
    if (!_templateText) {
        _templateText.reset(_textView->document()->clone());
    }
    _textView->setText(filledTemplate(*_templateText, _information, creditsDocument(_creditsFile)));
}

void KVAboutBoxController::windowDidLoad() {
    updateText();
    widenTextView();
    _textView->scrollToBeginning();
}

// The text stays where the template puts it, while the scroll area extends to the window's edges.
void KVAboutBoxController::widenTextView() {
    const QRect text = _textView->geometry();
    const QSize content = _window->size();
    const int right = content.width() - (text.x() + text.width());
    const int top = text.y();
    _textView->setGeometry(text.x() - right, 0, text.width() + 2 * right, content.height());
    _textView->setTextContainerInset(_textView->textContainerInset() + QSize(right, top));
}

}  // namespace tonquil
