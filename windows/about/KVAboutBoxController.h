// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>
#include <memory>

#include "app/panel/WindowSystem.h"
#include "windows/about/BundleInformation.h"

class QTextDocument;

namespace tonquil {

class AboutWindow;
class KVAboutBoxIconView;
class KVAboutBoxScrollView;

/// Fills the about window with the program's bundle information and shows it.
class KVAboutBoxController {
 public:
    /// `creditsFile` is an HTML file or resource; the program's own by default. The window is
    /// created on first use. The window system must outlive the controller.
    KVAboutBoxController(BundleInformation information, WindowSystem& windowSystem,
                         QString creditsFile = ownCredits());
    ~KVAboutBoxController();
    Q_DISABLE_COPY_MOVE(KVAboutBoxController)

    [[nodiscard]] static QString windowNibName();
    [[nodiscard]] static QString ownCredits();

    /// Shows the window in front; if it was hidden, scrolled to the top and centred on the screen.
    void showWindow();
    /// Fills the template again.
    void updateText();

    [[nodiscard]] AboutWindow& window();
    /// Null before the window is created, unless set before. Not owned.
    [[nodiscard]] KVAboutBoxIconView* iconView() const;
    void setIconView(KVAboutBoxIconView* iconView);
    [[nodiscard]] KVAboutBoxScrollView* textView() const;
    void setTextView(KVAboutBoxScrollView* textView);

 private:
    void windowDidLoad();
    void widenTextView();

    BundleInformation _information;
    WindowSystem& _windowSystem;
    QString _creditsFile;
    std::unique_ptr<AboutWindow> _window;
    QPointer<KVAboutBoxIconView> _iconView;
    QPointer<KVAboutBoxScrollView> _textView;
    /// The template before it was first filled.
    std::unique_ptr<QTextDocument> _templateText;
};

}  // namespace tonquil
