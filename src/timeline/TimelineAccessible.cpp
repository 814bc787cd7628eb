#include "TimelineAccessible.h"

#include "TimelineText.h"
#include "TimelineView.h"

TimelineAccessible::TimelineAccessible(TimelineView* view) : QAccessibleWidget(view, QAccessible::Slider) {}

QAccessibleInterface* TimelineAccessible::create(const QString&, QObject* object) {
    auto* view = qobject_cast<TimelineView*>(object);
    return view != nullptr ? new TimelineAccessible(view) : nullptr;
}

void* TimelineAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString TimelineAccessible::text(QAccessible::Text type) const {
    if (type != QAccessible::Value) return QAccessibleWidget::text(type);
    return QString::fromStdString(clockText(view()->position()) + " of " + clockText(view()->totalSeconds()));
}

QVariant TimelineAccessible::currentValue() const { return view()->position(); }

void TimelineAccessible::setCurrentValue(const QVariant& value) {
    bool isNumber = false;
    const double seconds = value.toDouble(&isNumber);
    if (isNumber) view()->requestSeek(seconds);
}

QVariant TimelineAccessible::maximumValue() const { return view()->totalSeconds(); }

QVariant TimelineAccessible::minimumValue() const { return 0.0; }

QVariant TimelineAccessible::minimumStepSize() const { return view()->stepSeconds(); }

TimelineView* TimelineAccessible::view() const { return static_cast<TimelineView*>(widget()); }
