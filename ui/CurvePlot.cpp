// SPDX-License-Identifier: MIT
#include "ui/CurvePlot.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/Accessibility.h"
#include "ui/MeetingCurves.h"
#include "ui/theme/Drawing.h"
#include "ui/theme/Theme.h"

namespace tonquil {

namespace {

constexpr std::array channels = {Channel::Red, Channel::Green, Channel::Blue};

// In points.
constexpr double plotPadding = 8;
constexpr double labelGap = 4;
constexpr double curveWidth = 1.5;
constexpr double baseWidth = 1;
constexpr double markRadius = 4;
constexpr int leastLabelSize = 11;
constexpr int plotWidth = 296;
constexpr int preferredHeight = 232;
constexpr int leastExtent = 120;

constexpr double baseOpacity = 0.55;
constexpr double faintOpacity = 0.4;

// The level at `input`, linearly interpolated between samples.
double levelAt(const std::vector<float>& levels, double input) {
    const double position = input * static_cast<double>(levels.size() - 1);
    const auto before = std::min(static_cast<std::size_t>(position), levels.size() - 2);
    const double share = position - static_cast<double>(before);
    return levels[before] * (1 - share) + levels[before + 1] * share;
}

QString twoDecimals(double value) {
    return QString::number(value, 'f', 2);
}

}  // namespace

CurvePlot::CurvePlot(QWidget* parent) : QWidget(parent) {
    installAccessibleInterfaces();
}

QSize CurvePlot::sizeHint() const {
    return {plotWidth, preferredHeight};
}
QSize CurvePlot::minimumSizeHint() const {
    return {leastExtent, leastExtent};
}

bool CurvePlot::take(Curves& curves, const Levels& levels) {
    Curves taken;
    for (std::size_t channel = 0; channel < levels.size(); ++channel) {
        taken.at(channel).reserve(levels.at(channel).size());
        for (const float level : levels.at(channel)) {
            taken.at(channel).push_back(std::isnan(level) ? 0 : std::clamp(level, 0.0F, 1.0F));
        }
    }
    if (taken == curves) {
        return false;
    }
    curves = std::move(taken);
    update();
    return true;
}

void CurvePlot::setCurves(const Levels& levels) {
    _isCurvePictureStale = take(_curves, levels) || _isCurvePictureStale;
}

void CurvePlot::setBase(const Levels& levels) {
    _isBackgroundStale = take(_base, levels) || _isBackgroundStale;
}

void CurvePlot::setMarkedPoint(std::optional<MarkedPoint> point) {
    if (point != _markedPoint) {
        _markedPoint = point;
        update();
    }
}

void CurvePlot::setInForce(bool areInForce) {
    if (areInForce != _areInForce) {
        _areInForce = areInForce;
        _isBackgroundStale = true;
        update();
    }
}

void CurvePlot::setMessage(const QString& message) {
    if (message != _message) {
        _message = message;
        update();
    }
}

QString CurvePlot::spokenDescription() const {
    if (!_message.isEmpty()) {
        return _message;
    }
    const std::array names = {QCoreApplication::translate("CurvePlot", "Red"),
                              QCoreApplication::translate("CurvePlot", "Green"),
                              QCoreApplication::translate("CurvePlot", "Blue")};
    QString description = QCoreApplication::translate("CurvePlot", "Output at input 0, 0.5 and 1.");
    if (!_areInForce) {
        description.prepend(
            QCoreApplication::translate("CurvePlot", "The correction is off.").append(u' '));
    }
    for (std::size_t channel = 0; channel < _curves.size(); ++channel) {
        const auto& levels = _curves.at(channel);
        if (levels.size() < 2) {
            return {};
        }
        description += QStringLiteral(" %1: %2, %3, %4.")
                           .arg(names.at(channel), twoDecimals(levelAt(levels, 0)),
                                twoDecimals(levelAt(levels, 0.5)), twoDecimals(levelAt(levels, 1)));
    }
    return description;
}

QFont CurvePlot::labelFont() const {
    QFont font = this->font();
    const int size = QFontInfo(font).pixelSize();
    font.setPixelSize(std::max(leastLabelSize, size * 9 / 10));
    return font;
}

// Whole points, so that the graph's outer lines are as sharp as the others.
QRectF CurvePlot::graphRect() const {
    const QFontMetrics metrics(labelFont());
    const double left = plotPadding + metrics.horizontalAdvance(QStringLiteral("0.5")) + labelGap;
    const double bottom = plotPadding / 2 + metrics.height() + labelGap / 2;
    const double top = std::max<double>(plotPadding, metrics.height() / 2.0);
    return QRectF(rect()).adjusted(left, std::ceil(top), -plotPadding - markRadius, -bottom);
}

double CurvePlot::inputOf(CurvePoint point) {
    switch (point) {
        case CurvePoint::Black:
            return 0;
        case CurvePoint::Middle:
            return 0.5;
        case CurvePoint::White:
            break;
    }
    return 1;
}

bool CurvePlot::showsCurves() const {
    return _message.isEmpty() &&
           std::ranges::all_of(_curves, [](const auto& levels) { return levels.size() >= 2; });
}

std::array<double, 3> CurvePlot::outputsAt(double input) const {
    return {levelAt(_curves[0], input), levelAt(_curves[1], input), levelAt(_curves[2], input)};
}

QPointF CurvePlot::pointAt(std::size_t channel, double input) const {
    const QRectF graph = graphRect();
    return {graph.left() + input * graph.width(),
            graph.bottom() - levelAt(_curves.at(channel), input) * graph.height()};
}

CurveLines CurvePlot::linesOf(const Curves& curves) const {
    const QRectF graph = graphRect();
    CurveLines lines;
    for (std::size_t channel = 0; channel < curves.size(); ++channel) {
        const auto& levels = curves.at(channel);
        QPolygonF& line = lines.at(channel);
        for (std::size_t sample = 0; levels.size() >= 2 && sample < levels.size(); ++sample) {
            const double input =
                static_cast<double>(sample) / static_cast<double>(levels.size() - 1);
            line.append({graph.left() + input * graph.width(),
                         graph.bottom() - levels[sample] * graph.height()});
        }
        line = withoutStraightParts(line);
    }
    return lines;
}

QImage CurvePlot::emptyPicture() const {
    const double scale = devicePixelRatioF();
    QImage picture((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    return picture;
}

void CurvePlot::drawBackground() {
    const Theme& theme = themeOf(*this);
    const QRectF graph = graphRect();
    QImage base = emptyPicture();
    QPen line(QBrush(), curveWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin);
    if (_areInForce) {
        line = QPen(QBrush(), baseWidth, Qt::CustomDashLine, Qt::FlatCap);
        line.setDashPattern({1.5, 2.5});
    }
    drawMeetingCurves(base, linesOf(_base), line, _key.appearance);

    _background = emptyPicture();
    QPainter painter(&_background);
    fillRounded(painter, rect(), fieldRadius, theme.field);
    for (int quarter = 0; quarter <= 4; ++quarter) {
        const double share = quarter / 4.0;
        drawHairline(painter, graph.left(), graph.bottom() - share * graph.height(), graph.width(),
                     Qt::Horizontal, theme.grid);
        drawHairline(painter, graph.left() + share * graph.width(), graph.top(), graph.height(),
                     Qt::Vertical, theme.grid);
    }
    drawLabels(painter, graph);
    painter.setOpacity(_areInForce ? baseOpacity : 1);
    painter.drawImage(QPointF(0, 0), base);
}

void CurvePlot::drawLabels(QPainter& painter, const QRectF& graph) const {
    painter.setFont(labelFont());
    painter.setPen(themeOf(*this).secondaryText);
    const double height = QFontMetrics(labelFont()).height();
    for (const auto& [label, share] : {std::pair{QStringLiteral("0"), 0.0},
                                       {QStringLiteral("0.5"), 0.5},
                                       {QStringLiteral("1"), 1.0}}) {
        const double y = graph.bottom() - share * graph.height();
        painter.drawText(QRectF(0, y - height / 2, graph.left() - labelGap, height),
                         Qt::AlignRight | Qt::AlignVCenter, label);
        const double x = graph.left() + share * graph.width();
        painter.drawText(QRectF(x - height, graph.bottom() + labelGap / 2, 2 * height, height),
                         Qt::AlignHCenter | Qt::AlignTop, label);
    }
}

void CurvePlot::updatePictures() {
    const PictureKey key = {size(), devicePixelRatioF(), effectiveAppearance(*this), font()};
    if (key != _key) {
        _key = key;
        _isBackgroundStale = true;
        _isCurvePictureStale = true;
        _curvePicture = emptyPicture();
    }
    if (_isBackgroundStale) {
        drawBackground();
        _isBackgroundStale = false;
    }
    if (_isCurvePictureStale) {
        drawMeetingCurves(_curvePicture, linesOf(_curves),
                          QPen(QBrush(), curveWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin),
                          _key.appearance);
        _isCurvePictureStale = false;
    }
}

void CurvePlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    if (!_message.isEmpty()) {
        drawMessage(painter);
        return;
    }
    updatePictures();
    painter.drawImage(QPointF(0, 0), _background);
    painter.setOpacity(painter.opacity() * (_areInForce ? 1 : faintOpacity));
    painter.drawImage(QPointF(0, 0), _curvePicture);
    drawMark(painter);
}

void CurvePlot::drawMessage(QPainter& painter) const {
    const Theme& theme = themeOf(*this);
    fillRounded(painter, rect(), fieldRadius, theme.field);
    painter.setPen(theme.text);
    const double inset = 2 * plotPadding;
    painter.drawText(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                     Qt::AlignCenter | Qt::TextWordWrap, _message);
}

void CurvePlot::drawMark(QPainter& painter) const {
    if (!_markedPoint) {
        return;
    }
    const Theme& theme = themeOf(*this);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t channel = 0; channel < _curves.size(); ++channel) {
        const bool isMarked = _markedPoint->channel == Channel::Master ||
                              _markedPoint->channel == channels.at(channel);
        if (isMarked && _curves.at(channel).size() >= 2) {
            painter.setPen(QPen(theme.edge, curveWidth));
            painter.setBrush(theme.channel(channels.at(channel)));
            painter.drawEllipse(pointAt(channel, inputOf(_markedPoint->point)), markRadius,
                                markRadius);
        }
    }
    painter.restore();
}

}  // namespace tonquil
