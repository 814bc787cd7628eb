#pragma once
// The timeline for assistive technologies: a slider whose value is the position in seconds;
// setting the value asks for a seek there.

#include <QAccessibleWidget>

class TimelineView;

class TimelineAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit TimelineAccessible(TimelineView* view);

    // The factory handed to QAccessible::installFactory; the accessibility cache owns what it makes.
    static QAccessibleInterface* create(const QString& className, QObject* object);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text type) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    TimelineView* view() const;
};
