#pragma once
// The playlist table: handles each key itself first, then passes it on to the key-handling view.

#include <QPointer>
#include <QTableView>

class GPSTableView : public QTableView {
    Q_OBJECT

public:
    explicit GPSTableView(QWidget* parent = nullptr);

    QWidget* controlView() const { return controlView_; }
    void setControlView(QWidget* controlView) { controlView_ = controlView; }

private:
    QPointer<QWidget> controlView_;
};
