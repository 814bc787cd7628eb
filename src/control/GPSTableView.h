#pragma once
// The playlist table: handles each key itself first (the arrows move the selection), then passes
// the same key on to the key-handling view, so Up and Down also change the volume here.

#include <QPointer>
#include <QTableView>

class GPSTableView : public QTableView {
    Q_OBJECT

public:
    explicit GPSTableView(QWidget* parent = nullptr);

    QWidget* controlView() const { return controlView_; }
    void setControlView(QWidget* controlView) { controlView_ = controlView; }

protected:
    // A shortcut override is judged by controlView, so the keys it takes reach it from here too.
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void forwardToControlView(QKeyEvent* event);

    QPointer<QWidget> controlView_;
};
