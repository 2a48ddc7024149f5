// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace tonquil {

class KVAboutBoxIconView;
class KVAboutBoxScrollView;

/// The about window before the controller fills it: the icon on the left, the text template to its
/// right. Escape closes it. It is light in every theme.
class AboutWindow : public QWidget {
 public:
    AboutWindow();

    [[nodiscard]] KVAboutBoxIconView* iconView() const { return _iconView; }
    [[nodiscard]] KVAboutBoxScrollView* textView() const { return _textView; }

 protected:
    void keyPressEvent(QKeyEvent* event) override;

 private:
    KVAboutBoxIconView* _iconView = nullptr;
    KVAboutBoxScrollView* _textView = nullptr;
};

}  // namespace tonquil
