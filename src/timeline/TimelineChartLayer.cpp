#include "TimelineChartLayer.h"

#include "ChartColumns.h"
#include "TimelineColours.h"
#include "TimelineLayout.h"
#include "TimelineText.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

struct Look {
    QColor areaTop;
    QColor areaBottom;
    QColor line;
    qreal lineWidth;
};

// Rounds a logical coordinate to the centre of the device pixel it falls in, for crisp hairlines.
double pixelCentre(double logical, double devicePixelRatio) {
    return (std::floor(logical * devicePixelRatio) + 0.5) / devicePixelRatio;
}

// The share of row `row` that [top, bottom) covers.
float rowCoverage(int row, float top, float bottom) {
    return std::clamp(std::min(float(row + 1), bottom) - std::max(float(row), top), 0.0f, 1.0f);
}

// A colour ready to be laid over premultiplied pixels.
struct Ink {
    float red, green, blue, alpha;  // 0-255, not premultiplied; alpha 0-1
    explicit Ink(const QColor& c) : red(c.red()), green(c.green()), blue(c.blue()), alpha(c.alphaF()) {}
    Ink(const QColor& c, float opacity) : Ink(c) { alpha = opacity; }

    void over(QRgb& pixel, float coverage) const {
        const float a = alpha * coverage;
        if (a <= 0) return;
        const float keep = 1 - a;
        const auto mix = [&](float source, int destination) { return int(source * a + destination * keep + 0.5f); };
        pixel =
            qRgba(mix(red, qRed(pixel)), mix(green, qGreen(pixel)), mix(blue, qBlue(pixel)), mix(255, qAlpha(pixel)));
    }
};

// The area under the speed, fading towards the baseline so that fast stretches stand out, and the
// line along its top: column by column, in device pixels.
void paintColumns(QImage& image, const std::vector<ChartColumn>& columns, float chartTop, float baseline,
                  const Look& look) {
    const int rows = image.height();
    std::vector<Ink> shades;
    shades.reserve(std::size_t(rows));
    for (int y = 0; y < rows; ++y) {
        const float depth = std::clamp((y + 0.5f - chartTop) / std::max(1.0f, baseline - chartTop), 0.0f, 1.0f);
        shades.emplace_back(look.areaTop,
                            float(look.areaTop.alphaF() * (1 - depth) + look.areaBottom.alphaF() * depth));
    }
    const Ink line(look.line);
    for (int x = 0; x < int(columns.size()) && x < image.width(); ++x) {
        const ChartColumn& column = columns[std::size_t(x)];
        if (column.coverage <= 0) continue;
        const int first = std::max(0, int(std::floor(std::min(column.areaTop, column.lineTop))));
        const int last = std::min(rows - 1, int(std::ceil(std::max(baseline, column.lineBottom))));
        for (int y = first; y <= last; ++y) {
            QRgb& pixel = reinterpret_cast<QRgb*>(image.scanLine(y))[x];
            shades[std::size_t(y)].over(pixel, rowCoverage(y, column.areaTop, baseline) * column.coverage);
            line.over(pixel, rowCoverage(y, column.lineTop, column.lineBottom) * column.coverage);
        }
    }
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
        painter.drawText(QRectF(left, 0, right - left, baseline - 2), Qt::AlignCenter,
                         QCoreApplication::translate("TimelineView", "No GPS"));
    }
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
    painter.drawText(QRectF(left, 0, width, TimelineLayout::kChartTop - 2), Qt::AlignHCenter | Qt::AlignBottom, text);
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
    const QSize pixels(int(std::ceil(size.width() * devicePixelRatio)),
                       int(std::ceil(size.height() * devicePixelRatio)));
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
    const TimelineScale scale =
        TimelineLayout::chartScale(size.width(), size.height(), series.totalSeconds, series.maxSpeed, devicePixelRatio);
    const std::vector<ChartRun> runs = chartRuns(series, scale);
    const auto draw = [&](QImage& image, const Look& look) {
        image = background.copy();
        paintColumns(image, chartColumns(runs, scale, pixels.width(), look.lineWidth * devicePixelRatio),
                     float(scale.top), float(scale.yAtSpeed(0)), look);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paintHighest(painter, series, size, unitName);
    };
    draw(unplayed_, {TimelineColours::unplayedAreaTop(), TimelineColours::unplayedAreaBottom(),
                     TimelineColours::unplayedLine(), 1.0});
    draw(played_,
         {TimelineColours::playedAreaTop(), TimelineColours::playedAreaBottom(), TimelineColours::playedLine(), 1.5});
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
