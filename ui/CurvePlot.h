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

/// Plots three transfer curves, input to the right and output up, over the display's own
/// calibration, the base, which is dotted. Where curves coincide they are white (dark theme) or
/// black (light).
///
/// The drawing is cached: a repaint without a change of curves, size or appearance only copies two
/// images.
class CurvePlot : public QWidget {
 public:
    /// Output levels of red, green and blue at evenly spaced inputs from 0 to 1.
    using Levels = std::array<std::span<const float>, 3>;
    enum class CurvePoint { Black, Middle, White };
    struct MarkedPoint {
        CurvePoint point = CurvePoint::Black;
        /// `Master` marks the point on all three curves, `None` on none.
        Channel channel = Channel::Master;

        friend bool operator==(const MarkedPoint&, const MarkedPoint&) = default;
    };

    explicit CurvePlot(QWidget* parent = nullptr);

    /// Copies the levels. Clamps them to 0…1 and treats not-a-number as 0; a channel of fewer than
    /// two levels is not drawn.
    void setCurves(const Levels& levels);
    /// Same as `setCurves`, for the dotted curves.
    void setBase(const Levels& levels);
    /// Marks the black end (input 0), the middle (0.5) or the white end (1), or nothing.
    void setMarkedPoint(std::optional<MarkedPoint> point);
    /// While the correction is off, the curves are faint and the base, which the displays show, is
    /// solid.
    void setInForce(bool areInForce);
    /// Shown instead of the plot, word-wrapped, unless empty.
    void setMessage(const QString& message);
    [[nodiscard]] const QString& message() const { return _message; }

    /// Describes the curves or the message in words, for screen readers.
    [[nodiscard]] QString spokenDescription() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

    /// Whether there are three curves and no message is in their place.
    [[nodiscard]] bool showsCurves() const;
    /// Where the curves are drawn, in points.
    [[nodiscard]] QRectF graphRect() const;
    [[nodiscard]] QFont labelFont() const;
    [[nodiscard]] static double inputOf(CurvePoint point);
    /// What red, green and blue are at an input (0 to 1); only while there are curves.
    [[nodiscard]] std::array<double, 3> outputsAt(double input) const;

 private:
    using Curves = std::array<std::vector<float>, 3>;
    /// What the cached images depend on besides the curves.
    struct PictureKey {
        QSize size;
        double scale = 0;
        Appearance appearance;
        QFont font;

        friend bool operator==(const PictureKey&, const PictureKey&) = default;
    };

    [[nodiscard]] QPointF pointAt(std::size_t channel, double input) const;
    [[nodiscard]] CurveLines linesOf(const Curves& curves) const;
    [[nodiscard]] QImage emptyPicture() const;
    /// Returns whether the levels changed.
    bool take(Curves& curves, const Levels& levels);
    void updatePictures();
    void drawBackground();
    void drawLabels(QPainter& painter, const QRectF& graph) const;
    void drawMessage(QPainter& painter) const;
    void drawMark(QPainter& painter) const;

    Curves _curves;
    Curves _base;
    std::optional<MarkedPoint> _markedPoint;
    bool _areInForce = true;
    QString _message;

    PictureKey _key;
    QImage _background;
    QImage _curvePicture;
    bool _isBackgroundStale = true;
    bool _isCurvePictureStale = true;
};

}  // namespace tonquil
