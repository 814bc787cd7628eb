#include "TimelineView.h"

#include "TimelineAccessible.h"
#include "TimelineColours.h"
#include "TimelineLayout.h"
#include "TimelineText.h"

#include <QAccessible>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace {

// The cursor's knob and line, and the antialiased pixel around them.
constexpr double kKnobWidth = 8;
constexpr double kKnobHeight = 9;
constexpr int kCursorHalfWidth = int(kKnobWidth / 2) + 2;

// The screen's ratio, or that of the image the widget is rendered into (which shows only in the
// painter's transform).
double devicePixelRatioOf(const QPainter& painter) {
    const QTransform& transform = painter.deviceTransform();
    return std::max(painter.device() ? painter.device()->devicePixelRatioF() : 1.0,
                    std::hypot(transform.m11(), transform.m12()));
}

// x falls on a device pixel's edge: the line, filled without antialiasing, stays sharp.
void paintCursor(QPainter& painter, double x, double height) {
    const double bottom = height - TimelineLayout::kBottomInset + 2;
    painter.fillRect(QRectF(x - 2, kKnobHeight, 4, bottom - kKnobHeight), TimelineColours::outline());
    painter.fillRect(QRectF(x - 1, kKnobHeight, 2, bottom - kKnobHeight - 1), TimelineColours::cursor());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(TimelineColours::outline(), 1));
    painter.setBrush(TimelineColours::cursor());
    painter.drawRoundedRect(QRectF(x - kKnobWidth / 2, 1.5, kKnobWidth, kKnobHeight), 2, 2);
}

}  // namespace

TimelineView::TimelineView(QWidget* parent) : QWidget(parent) {
    static const bool accessibleInstalled = (QAccessible::installFactory(&TimelineAccessible::create), true);
    (void)accessibleInstalled;
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Timeline"));
    describe();
}

void TimelineView::setSeries(TimelineSeries series) {
    series_ = std::move(series);
    if (!std::isfinite(series_.totalSeconds) || series_.totalSeconds < 0) series_.totalSeconds = 0;
    if (!std::isfinite(series_.maxSpeed)) series_.maxSpeed = 0;
    ++seriesVersion_;
    position_ = std::clamp(position_, 0.0, series_.totalSeconds);
    // An empty series is the moment between two clips' loads: the marks wait for the next one.
    for (std::optional<double>* mark : {&markStart_, &markEnd_})
        if (*mark && series_.totalSeconds > 0) **mark = std::min(**mark, series_.totalSeconds);
    describe();
    update();
}

void TimelineView::setPosition(double seconds) {
    if (dragging_ || !std::isfinite(seconds)) return;
    moveCursor(std::clamp(seconds, 0.0, series_.totalSeconds));
}

void TimelineView::setMarkStart(double seconds) { setMark(markStart_, seconds); }

void TimelineView::setMarkEnd(double seconds) { setMark(markEnd_, seconds); }

void TimelineView::clearMarks() {
    if (!markStart_ && !markEnd_) return;
    markStart_.reset();
    markEnd_.reset();
    describe();
    update();
}

void TimelineView::setMark(std::optional<double>& mark, double seconds) {
    if (!std::isfinite(seconds)) return;
    mark = std::clamp(seconds, 0.0, series_.totalSeconds);
    describe();
    update();
}

void TimelineView::setSpeedUnitName(QString unitName) {
    if (unitName == unitName_) return;
    unitName_ = std::move(unitName);
    describe();
    update();
}

void TimelineView::setHoverTextProvider(std::function<QString(double)> provider) {
    hoverTextProvider_ = std::move(provider);
}

QString TimelineView::hoverText(double seconds) const {
    if (hoverTextProvider_) return hoverTextProvider_(seconds);
    const std::optional<TimelinePoint> point = series_.pointAt(seconds);
    const QString speed =
        point ? QString::fromStdString(speedText(point->speed, unitName_.toStdString())) : tr("no GPS");
    return QString::fromStdString(clockText(seconds)) + QStringLiteral("  ") + speed;
}

void TimelineView::setStepSeconds(double seconds) {
    if (std::isfinite(seconds) && seconds > 0) stepSeconds_ = seconds;
}

void TimelineView::requestSeek(double seconds) {
    if (series_.totalSeconds <= 0 || !std::isfinite(seconds)) return;
    const double target = std::clamp(seconds, 0.0, series_.totalSeconds);
    moveCursor(target);
    emit seekRequested(target);
}

double TimelineView::xAtTime(double seconds) const {
    return TimelineLayout::chartScale(width(), height(), series_.totalSeconds, series_.maxSpeed).xAtTime(seconds);
}

double TimelineView::timeAtX(double x) const {
    return TimelineLayout::chartScale(width(), height(), series_.totalSeconds, series_.maxSpeed).timeAtX(x);
}

QSize TimelineView::sizeHint() const { return {480, 48}; }

QSize TimelineView::minimumSizeHint() const { return {2 * int(TimelineLayout::kSideInset) + 20, 44}; }

void TimelineView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const double devicePixelRatio = devicePixelRatioOf(painter);
    chart_.prepare(series_, seriesVersion_, size(), devicePixelRatio, unitName_);
    const double x = cursorX(position_, devicePixelRatio);
    chart_.paint(painter, event->rect(), x);
    paintMarks(painter);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(TimelineColours::label(), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    if (series_.totalSeconds > 0 && event->rect().intersects(cursorStrip(x, x))) paintCursor(painter, x, height());
}

void TimelineView::paintMarks(QPainter& painter) const {
    if (series_.totalSeconds <= 0 || (!markStart_ && !markEnd_)) return;
    const double top = 1;
    const double bottom = height() - TimelineLayout::kBottomInset + 2;
    if (markStart_ && markEnd_) {
        const double left = xAtTime(std::min(*markStart_, *markEnd_));
        const double right = xAtTime(std::max(*markStart_, *markEnd_));
        painter.fillRect(QRectF(left, top, right - left, bottom - top), TimelineColours::markedSpan());
    }
    for (const std::optional<double>& mark : {markStart_, markEnd_})
        if (mark) painter.fillRect(QRectF(std::round(xAtTime(*mark)) - 1, top, 2, bottom - top), TimelineColours::markEdge());
}

void TimelineView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    dragging_ = true;
    lastSeekPixel_.reset();
    seekToPointer(event->position().x());
}

void TimelineView::mouseMoveEvent(QMouseEvent* event) {
    const double x = event->position().x();
    if (dragging_) seekToPointer(x);
    if (series_.totalSeconds > 0) QToolTip::showText(event->globalPosition().toPoint(), hoverText(timeAtX(x)), this);
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragging_) return QWidget::mouseReleaseEvent(event);
    dragging_ = false;
    emit seekFinished();
}

void TimelineView::keyPressEvent(QKeyEvent* event) {
    // With a modifier the key is the window's (Ctrl+Left goes to the previous movie).
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || series_.totalSeconds <= 0) return event->ignore();
    switch (event->key()) {
        case Qt::Key_Left:
            return requestSeek(position_ - stepSeconds_);
        case Qt::Key_Right:
            return requestSeek(position_ + stepSeconds_);
        case Qt::Key_Home:
            return requestSeek(0);
        case Qt::Key_End:
            return requestSeek(series_.totalSeconds);
        default:
            return event->ignore();
    }
}

void TimelineView::leaveEvent(QEvent* event) {
    QToolTip::hideText();
    QWidget::leaveEvent(event);
}

void TimelineView::moveCursor(double seconds) {
    const double devicePixelRatio = devicePixelRatioF();
    const double from = cursorX(position_, devicePixelRatio);
    position_ = seconds;
    const double to = cursorX(position_, devicePixelRatio);
    if (from == to) return;
    update(cursorStrip(from, to));
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent change(this, position_);
        QAccessible::updateAccessibility(&change);
    }
}

void TimelineView::seekToPointer(double x) {
    if (series_.totalSeconds <= 0) return;
    const TimelineScale scale = TimelineLayout::chartScale(width(), height(), series_.totalSeconds, series_.maxSpeed);
    const int pixel = int(std::lround(std::clamp(x, scale.left, scale.left + scale.width)));
    if (lastSeekPixel_ == pixel) return;
    lastSeekPixel_ = pixel;
    requestSeek(scale.timeAtX(x));
}

double TimelineView::cursorX(double seconds, double devicePixelRatio) const {
    return std::round(xAtTime(seconds) * devicePixelRatio) / devicePixelRatio;
}

QRect TimelineView::cursorStrip(double fromX, double toX) const {
    const int left = int(std::floor(std::min(fromX, toX))) - kCursorHalfWidth;
    const int right = int(std::ceil(std::max(fromX, toX))) + kCursorHalfWidth;
    return QRect(left, 0, right - left, height());
}

void TimelineView::describe() {
    const SeriesPhrases phrases{
        .noSpeed = tr("No speed recorded over %1").toStdString(),
        .highest = tr("Speed over %1, highest %2 at %3").toStdString(),
    };
    QString text = QString::fromStdString(seriesSummary(series_, unitName_.toStdString(), phrases));
    const auto clock = [](double seconds) { return QString::fromStdString(clockText(seconds)); };
    if (markStart_ && markEnd_)
        text += tr("; marked %1 to %2").arg(clock(std::min(*markStart_, *markEnd_)), clock(std::max(*markStart_, *markEnd_)));
    else if (markStart_)
        text += tr("; marked from %1").arg(clock(*markStart_));
    else if (markEnd_)
        text += tr("; marked up to %1").arg(clock(*markEnd_));
    setAccessibleDescription(text);
}

void TimelineView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Timeline"));
        describe();
        QWidget::update();
    }
    QWidget::changeEvent(event);
}
