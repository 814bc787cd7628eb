#pragma once
// The timeline under the movie: the speed over the time of a clip or of a whole trip, the part
// already played brighter, and a cursor at the position. Clicking or dragging on it, or the arrow,
// Home and End keys, ask for a seek; the widget never seeks by itself.

#include "TimelineChartLayer.h"
#include "TimelineSeries.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <optional>

class TimelineView : public QWidget {
    Q_OBJECT

public:
    explicit TimelineView(QWidget* parent = nullptr);

    // Replaces what is drawn; the chart is redrawn at the next paint. The position is kept,
    // clamped to the new length.
    void setSeries(TimelineSeries series);
    const TimelineSeries& series() const { return series_; }
    double totalSeconds() const { return series_.totalSeconds; }

    // Moves the cursor. Cheap enough for every tick of playback: it repaints the strip between the
    // old and the new cursor only, and nothing when the cursor stays on the same device pixel.
    // Ignored while the pointer drags the cursor, and for a time that is not a number.
    void setPosition(double seconds);
    double position() const { return position_; }

    // The span marked for saving, in the series' seconds. Either end can be set alone and in
    // either order; both survive seeks and new series (clamped to the length of any that has one)
    // until cleared.
    void setMarkStart(double seconds);
    void setMarkEnd(double seconds);
    void clearMarks();
    std::optional<double> markStart() const { return markStart_; }
    std::optional<double> markEnd() const { return markEnd_; }

    // The unit of the series' speeds ("KM/H", "MPH"), for the labels, tooltips and description.
    void setSpeedUnitName(QString unitName);
    const QString& speedUnitName() const { return unitName_; }

    // The tooltip's text at a time; without a provider, the time and the speed there.
    void setHoverTextProvider(std::function<QString(double seconds)> provider);
    QString hoverText(double seconds) const;

    // What Left and Right move by; 10 seconds, as the position slider's step.
    void setStepSeconds(double seconds);
    double stepSeconds() const { return stepSeconds_; }

    // Moves the cursor to a time (clamped to the series) and asks for a seek there, as a click
    // does. Nothing happens while the series has no length.
    void requestSeek(double seconds);

    // The x of a time on the chart and the time at an x, in logical pixels.
    double xAtTime(double seconds) const;
    double timeAtX(double x) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    // While dragging, at most once for each pixel the pointer reaches.
    void seekRequested(double seconds);
    // The pointer let go of the cursor after a click or a drag.
    void seekFinished();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void moveCursor(double seconds);
    void seekToPointer(double x);
    // The cursor's x rounded to the device's pixels, where the played part ends.
    double cursorX(double seconds, double devicePixelRatio) const;
    QRect cursorStrip(double fromX, double toX) const;
    void describe();
    void setMark(std::optional<double>& mark, double seconds);
    void paintMarks(QPainter& painter) const;

    TimelineSeries series_;
    std::uint64_t seriesVersion_ = 1;
    double position_ = 0;
    QString unitName_ = QStringLiteral("KM/H");
    std::function<QString(double)> hoverTextProvider_;
    double stepSeconds_ = 10;
    std::optional<double> markStart_;
    std::optional<double> markEnd_;
    bool dragging_ = false;
    std::optional<int> lastSeekPixel_;
    TimelineChartLayer chart_;
};
