#include "TimelineChartLayer.h"

#include "ChartRuns.h"
#include "TimelineColours.h"
#include "TimelineLayout.h"
#include "TimelineText.h"

#include <QPainter>
#include <QLinearGradient>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

struct Look {
    QColor areaTop;  // the area fades towards the baseline: fast stretches stand out
    QColor areaBottom;
    QColor line;
    qreal lineWidth;
};

struct ChartPaths {
    QPainterPath area;
    QPainterPath line;
};

// Rounds a logical coordinate to the centre of the device pixel it falls in, for crisp hairlines.
double pixelCentre(double logical, double devicePixelRatio) {
    return (std::floor(logical * devicePixelRatio) + 0.5) / devicePixelRatio;
}

// The area under each run and the line along its top. Where a column holds several samples the
// line runs through their lowest and highest speed, nearer end first, so that it stays unbroken.
ChartPaths chartPaths(const TimelineSeries& series, QSize size, double devicePixelRatio) {
    const TimelineScale device = TimelineLayout::chartScale(size.width(), size.height(), series.totalSeconds,
                                                            series.maxSpeed, devicePixelRatio);
    const TimelineScale logical =
        TimelineLayout::chartScale(size.width(), size.height(), series.totalSeconds, series.maxSpeed);
    const double baseline = logical.yAtSpeed(0);
    ChartPaths paths;
    for (const ChartRun& run : chartRuns(series, device)) {
        const auto x = [&](const ChartVertex& v) { return v.x / devicePixelRatio; };
        if (run.size() == 1) {  // a lone sample narrower than a pixel: a spike
            paths.line.moveTo(x(run.front()), baseline);
            paths.line.lineTo(x(run.front()), logical.yAtSpeed(run.front().high));
            continue;
        }
        paths.area.moveTo(x(run.front()), baseline);
        float previous = run.front().low;
        paths.line.moveTo(x(run.front()), logical.yAtSpeed(previous));
        for (const ChartVertex& vertex : run) {
            paths.area.lineTo(x(vertex), logical.yAtSpeed(vertex.high));
            const bool highFirst = std::abs(previous - vertex.high) < std::abs(previous - vertex.low);
            const float first = highFirst ? vertex.high : vertex.low;
            const float second = highFirst ? vertex.low : vertex.high;
            paths.line.lineTo(x(vertex), logical.yAtSpeed(first));
            if (second != first) paths.line.lineTo(x(vertex), logical.yAtSpeed(second));
            previous = second;
        }
        paths.area.lineTo(x(run.back()), baseline);
        paths.area.closeSubpath();
    }
    return paths;
}

// A round step that puts two or three grid lines under the top speed.
double gridStep(double maxSpeed) {
    for (double decade = 1; decade < 1e6; decade *= 10)
        for (double step : {1.0, 2.0, 2.5, 5.0})
            if (maxSpeed / (step * decade) <= 3) return step * decade;
    return 0;
}

QFont labelFont() {
    QFont font;
    font.setPixelSize(10);
    font.setWeight(QFont::DemiBold);
    return font;
}

void paintBackground(QPainter& painter, const TimelineSeries& series, QSize size, double devicePixelRatio) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(TimelineColours::panel());
    painter.drawRoundedRect(QRectF(QPointF(0, 0), size), 4, 4);
    const TimelineScale scale =
        TimelineLayout::chartScale(size.width(), size.height(), series.totalSeconds, series.maxSpeed);
    const double left = scale.left, right = scale.left + scale.width;
    if (!series.empty()) {
        QPen grid(TimelineColours::grid(), 1);
        grid.setCosmetic(true);
        painter.setPen(grid);
        const double step = gridStep(series.maxSpeed);
        for (double speed = step; step > 0 && speed < series.maxSpeed * 0.95; speed += step) {
            const double y = pixelCentre(scale.yAtSpeed(speed), devicePixelRatio);
            painter.drawLine(QPointF(left, y), QPointF(right, y));
        }
    }
    // The baseline's lower half shows under the area: a crisp floor whatever the ratio.
    const double baseline = scale.yAtSpeed(0);
    painter.fillRect(QRectF(left, baseline - 0.5, right - left, 1), TimelineColours::baseline());
    if (series.empty() && series.totalSeconds > 0) {
        painter.setFont(labelFont());
        painter.setPen(TimelineColours::quietLabel());
        painter.drawText(QRectF(left, 0, right - left, baseline - 2), Qt::AlignCenter, QStringLiteral("No GPS"));
    }
}

void paintChart(QPainter& painter, const ChartPaths& paths, const Look& look, QSize size) {
    QLinearGradient fade(0, TimelineLayout::kChartTop, 0, size.height() - TimelineLayout::kBottomInset);
    fade.setColorAt(0, look.areaTop);
    fade.setColorAt(1, look.areaBottom);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fade);
    painter.drawPath(paths.area);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.line, look.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(paths.line);
}

// A dot on the highest speed and its value above the chart, kept inside the widget.
void paintHighest(QPainter& painter, const TimelineSeries& series, QSize size, const QString& unitName) {
    if (!series.highest) return;
    const TimelineScale scale =
        TimelineLayout::chartScale(size.width(), size.height(), series.totalSeconds, series.maxSpeed);
    const QPointF peak(scale.xAtTime(series.highest->seconds), scale.yAtSpeed(series.highest->speed));
    painter.setPen(QPen(TimelineColours::outline(), 1));
    painter.setBrush(TimelineColours::cursor());
    painter.drawEllipse(peak, 2.5, 2.5);

    const QString text = QString::fromStdString(speedText(series.highest->speed, unitName.toStdString()));
    painter.setFont(labelFont());
    const QFontMetricsF metrics(painter.font());
    const double width = metrics.horizontalAdvance(text) + 2;
    const double left = std::clamp(peak.x() - width / 2, 3.0, std::max(3.0, size.width() - 3.0 - width));
    painter.setPen(TimelineColours::label());
    painter.drawText(QRectF(left, 0, width, TimelineLayout::kChartTop - 2), Qt::AlignHCenter | Qt::AlignBottom,
                     text);
}

}  // namespace

void TimelineChartLayer::prepare(const TimelineSeries& series, std::uint64_t seriesVersion, QSize size,
                                 double devicePixelRatio, const QString& unitName) {
    rebuilt_ = false;
    if (!played_.isNull() && seriesVersion == seriesVersion_ && size == size_ &&
        devicePixelRatio == devicePixelRatio_ && unitName == unitName_)
        return;
    rebuild(series, size, devicePixelRatio, unitName);
    seriesVersion_ = seriesVersion;
    size_ = size;
    devicePixelRatio_ = devicePixelRatio;
    unitName_ = unitName;
    rebuilt_ = true;
}

void TimelineChartLayer::rebuild(const TimelineSeries& series, QSize size, double devicePixelRatio,
                                 const QString& unitName) {
    const QSize pixels(int(std::ceil(size.width() * devicePixelRatio)), int(std::ceil(size.height() * devicePixelRatio)));
    if (pixels.isEmpty() || pixels.width() > 32'768 || pixels.height() > 4'096) {
        unplayed_ = played_ = QImage();
        return;
    }
    QImage background(pixels, QImage::Format_ARGB32_Premultiplied);
    background.setDevicePixelRatio(devicePixelRatio);
    background.fill(Qt::transparent);
    {
        QPainter painter(&background);
        painter.setRenderHint(QPainter::Antialiasing);
        paintBackground(painter, series, size, devicePixelRatio);
    }
    const ChartPaths paths = chartPaths(series, size, devicePixelRatio);
    const auto draw = [&](QImage& image, const Look& look) {
        image = background.copy();
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paintChart(painter, paths, look, size);
        paintHighest(painter, series, size, unitName);
    };
    draw(unplayed_, {TimelineColours::unplayedAreaTop(), TimelineColours::unplayedAreaBottom(),
                     TimelineColours::unplayedLine(), 1.0});
    draw(played_, {TimelineColours::playedAreaTop(), TimelineColours::playedAreaBottom(), TimelineColours::playedLine(),
                   1.5});
}

void TimelineChartLayer::paint(QPainter& painter, const QRect& rect, double splitX) const {
    if (played_.isNull()) return;
    const QRectF area = QRectF(rect) & QRectF(QPointF(0, 0), size_);
    const auto copy = [&](const QImage& image, double from, double to) {
        const QRectF target(QPointF(std::max(from, area.left()), area.top()),
                            QPointF(std::min(to, area.right()), area.bottom()));
        if (target.width() <= 0 || target.height() <= 0) return;
        const QRectF source(target.topLeft() * devicePixelRatio_, target.size() * devicePixelRatio_);
        painter.drawImage(target, image, source);
    };
    copy(played_, area.left(), splitX);
    copy(unplayed_, splitX, area.right());
}
