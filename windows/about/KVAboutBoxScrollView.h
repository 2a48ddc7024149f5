// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QTextBrowser>
#include <memory>

namespace tonquil {

/// The scrolling text of the about window, on a background that is not its own. Links open where
/// the desktop opens them.
class KVAboutBoxScrollView : public QTextBrowser {
 public:
    explicit KVAboutBoxScrollView(QWidget* parent = nullptr);

    /// Shows a text, from its beginning, inside the inset.
    void setText(std::unique_ptr<QTextDocument> text);
    /// What is kept clear left and right, and above and below the text, in points.
    [[nodiscard]] QSize textContainerInset() const { return _textContainerInset; }
    void setTextContainerInset(const QSize& inset);
    void scrollToBeginning();

 protected:
    /// Where the scroll bars change their style, the text stays where it is.
    void changeEvent(QEvent* event) override;

 private:
    void applyInset();

    QSize _textContainerInset{0, 0};
};

}  // namespace tonquil
