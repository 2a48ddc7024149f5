// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QImage>
#include <QWidget>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "ui/MeetingCurves.h"
#include "ui/theme/Appearance.h"
#include "ui/theme/Channel.h"

namespace tonquil {

/// Shows three transfer curves, input to the right and output up, over the display's own
/// calibration, which is dotted. Equal curves meet in white (dark theme) or black (light).
///
/// The pointer reads a value out. What is drawn is kept: a repaint without a change of the curves,
/// the size or the appearance copies two pictures.
class CurvePlot : public QWidget {
 public:
    /// Output levels of red, green and blue at evenly spaced inputs from 0 to 1.
    using Levels = std::array<std::span<const float>, 3>;
    enum class CurvePoint { Black, Middle, White };
    struct MarkedPoint {
        CurvePoint point = CurvePoint::Black;
        /// Master marks the point on all three curves, `None` on none.
        Channel channel = Channel::Master;

        friend bool operator==(const MarkedPoint&, const MarkedPoint&) = default;
    };

    explicit CurvePlot(QWidget* parent = nullptr);

    /// Copies the levels. They are held within 0 to 1, not-a-number counts as 0; a channel of fewer
    /// than two levels is not drawn.
    void setCurves(const Levels& levels);
    /// As `setCurves`, for the dotted curves.
    void setBase(const Levels& levels);
    /// Marks the black end (input 0), the middle (0.5) or the white end (1), or nothing.
    void setMarkedPoint(std::optional<MarkedPoint> point);
    /// Stands in the plot's place while it is not empty, wrapped.
    void setMessage(const QString& message);
    [[nodiscard]] const QString& message() const { return _message; }

    /// What the pointer reads out at an input (0 to 1): "0.50 → 0.47 0.48 0.50". Empty unless there
    /// are three curves.
    [[nodiscard]] QString readoutAt(double input) const;
    /// The curves or the message in words, for those who cannot see them.
    [[nodiscard]] QString spokenDescription() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

 private:
    using Curves = std::array<std::vector<float>, 3>;
    /// What the kept pictures depend on besides the curves.
    struct PictureKey {
        QSize size;
        double scale = 0;
        Appearance appearance;
        QFont font;

        friend bool operator==(const PictureKey&, const PictureKey&) = default;
    };

    [[nodiscard]] QRectF graphRect() const;
    [[nodiscard]] QFont labelFont() const;
    [[nodiscard]] QPointF pointAt(std::size_t channel, double input) const;
    [[nodiscard]] CurveLines linesOf(const Curves& curves) const;
    [[nodiscard]] QImage emptyPicture() const;
    /// Returns whether the levels differ from what was there.
    bool take(Curves& curves, const Levels& levels);
    void updatePictures();
    void drawBackground();
    void drawLabels(QPainter& painter, const QRectF& graph) const;
    void drawMessage(QPainter& painter) const;
    void drawMark(QPainter& painter) const;
    void drawReadout(QPainter& painter) const;

    Curves _curves;
    Curves _base;
    std::optional<MarkedPoint> _markedPoint;
    QString _message;
    /// The input under the pointer.
    std::optional<double> _hoveredInput;

    PictureKey _key;
    QImage _background;
    QImage _curvePicture;
    bool _isBackgroundStale = true;
    bool _isCurvePictureStale = true;
};

}  // namespace tonquil
