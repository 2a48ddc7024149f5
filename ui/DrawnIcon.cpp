// SPDX-License-Identifier: MIT
#include "ui/DrawnIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <utility>

#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr double gridSize = 16;

class DrawnIconEngine : public QIconEngine {
 public:
    DrawnIconEngine(IconDrawing draw, QString name)
        : _draw(std::move(draw)), _name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
        painter->scale(side / gridSize, side / gridSize);
        if (mode == QIcon::Disabled) {
            painter->setOpacity(painter->opacity() * disabledOpacity);
        }
        _draw(*painter, mode);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    // For those who take pixels, such as a tray.
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int side : {16, 22, 24, 32, 44, 48, 64}) {
            sizes.append(QSize(side, side));
        }
        return sizes;
    }

    QString iconName() override { return _name; }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIconEngine(*this); }

 private:
    IconDrawing _draw;
    QString _name;
};

}  // namespace

QIcon drawnIcon(IconDrawing draw, const QString& name) {
    return QIcon(new DrawnIconEngine(std::move(draw), name));
}

}  // namespace tonquil
