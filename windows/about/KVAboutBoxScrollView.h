// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QTextBrowser>
#include <memory>

namespace tonquil {

/// The about window's scrolling text, with a transparent background. Links open in the desktop's
/// default program.
class KVAboutBoxScrollView : public QTextBrowser {
 public:
    explicit KVAboutBoxScrollView(QWidget* parent = nullptr);

    /// Shows a text from its start, inside the inset.
    void setText(std::unique_ptr<QTextDocument> text);
    /// Space kept clear on the left and right, and above and below the text, in points.
    [[nodiscard]] QSize textContainerInset() const { return _textContainerInset; }
    void setTextContainerInset(const QSize& inset);
    void scrollToBeginning();

 protected:
    /// Keeps the text in place when the scroll bars change their style.
    void changeEvent(QEvent* event) override;

 private:
    void applyInset();

    QSize _textContainerInset{0, 0};
};

}  // namespace tonquil
