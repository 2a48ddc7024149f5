// SPDX-License-Identifier: MIT
#include "windows/about/KVAboutBoxScrollView.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextFrame>

namespace tonquil {

KVAboutBoxScrollView::KVAboutBoxScrollView(QWidget* parent) : QTextBrowser(parent) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setOpenExternalLinks(true);
    viewport()->setAutoFillBackground(false);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    setPalette(palette);
}

void KVAboutBoxScrollView::setText(std::unique_ptr<QTextDocument> text) {
    QTextDocument* const shown = text.release();
    shown->setParent(this);
    // The base class deletes the previous document, which it owns.
    setDocument(shown);
    applyInset();
    scrollToBeginning();
}

void KVAboutBoxScrollView::setTextContainerInset(const QSize& inset) {
    _textContainerInset = inset;
    applyInset();
}

void KVAboutBoxScrollView::applyInset() {
    QTextFrame* const frame = document()->rootFrame();
    QTextFrameFormat format = frame->frameFormat();
    format.setLeftMargin(_textContainerInset.width());
    format.setRightMargin(_textContainerInset.width());
    format.setTopMargin(_textContainerInset.height());
    format.setBottomMargin(_textContainerInset.height());
    frame->setFrameFormat(format);
}

void KVAboutBoxScrollView::scrollToBeginning() {
    moveCursor(QTextCursor::Start);
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void KVAboutBoxScrollView::changeEvent(QEvent* event) {
    const QPoint origin(horizontalScrollBar()->value(), verticalScrollBar()->value());
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        horizontalScrollBar()->setValue(origin.x());
        verticalScrollBar()->setValue(origin.y());
    }
}

}  // namespace tonquil
