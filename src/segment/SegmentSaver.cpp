#include "SegmentSaver.h"

#include "SegmentDialogs.h"

#include <QMessageBox>
#include <QProgressDialog>
#include <QTimer>
#include <QWidget>

namespace {

// Saves quicker than this show no progress at all.
constexpr int kProgressDelayMs = 500;
constexpr int kProgressSteps = 1000;

}  // namespace

SegmentSaver* SegmentSaver::start(SegmentRequest request, QWidget* window) {
    return new SegmentSaver(std::move(request), window);
}

SegmentSaver::SegmentSaver(SegmentRequest request, QWidget* window) : QObject(window), window_(window) {
    setObjectName(QStringLiteral("segmentSaver"));
    QTimer::singleShot(kProgressDelayMs, this, [this] { showProgress(); });
    worker_ = std::jthread([this, request = std::move(request)](std::stop_token stop) {
        SegmentResult result = SegmentJob::run(request, [this](double fraction) { progress_ = fraction; }, stop);
        QMetaObject::invokeMethod(this, [this, result = std::move(result)] { finish(result); }, Qt::QueuedConnection);
    });
}

SegmentSaver::~SegmentSaver() {
    worker_.request_stop();
    if (progressDialog_) progressDialog_->deleteLater();
}

void SegmentSaver::showProgress() {
    QProgressDialog* dialog = makeSegmentProgress(window_, kProgressSteps);
    connect(dialog, &QProgressDialog::canceled, this, [this] { worker_.request_stop(); });
    progressDialog_ = dialog;
    progressTimer_ = new QTimer(this);
    connect(progressTimer_, &QTimer::timeout, this, [this] {
        if (progressDialog_) progressDialog_->setValue(int(progress_.load() * kProgressSteps));
    });
    progressTimer_->start(100);
    dialog->open();
}

void SegmentSaver::finish(const SegmentResult& result) {
    if (progressDialog_) progressDialog_->close();
    // A cancel is what the user asked for; any other failure is said.
    if (!result.ok() && result.error != kCutCancelled && window_ != nullptr) {
        makeSegmentFailure(window_, QString::fromStdString(result.error))->open();
    }
    emit finished(result);
    deleteLater();
}
