#pragma once
// Runs one segment save on a worker thread for the window: a progress dialog with Cancel when it
// takes longer than half a second, and a message if it fails. It deletes itself when done; if its
// parent goes first, the save is cancelled and waited for.

#include "SegmentJob.h"

#include <QObject>
#include <QPointer>

#include <atomic>
#include <thread>

class QProgressDialog;
class QTimer;
class QWidget;

class SegmentSaver final : public QObject {
    Q_OBJECT
public:
    // Starts saving at once; window: where the dialogs go, and the saver's parent.
    static SegmentSaver* start(SegmentRequest request, QWidget* window);
    ~SegmentSaver() override;

signals:
    void finished(const SegmentResult& result);

private:
    SegmentSaver(SegmentRequest request, QWidget* window);
    void showProgress();
    void finish(const SegmentResult& result);

    QWidget* window_;
    QPointer<QProgressDialog> progressDialog_;
    QTimer* progressTimer_ = nullptr;  // a child
    std::atomic<double> progress_{0};
    // Last: stopped and joined before anything above goes.
    std::jthread worker_;
};
