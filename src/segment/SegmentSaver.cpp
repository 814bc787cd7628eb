#include "SegmentSaver.h"

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
    auto* dialog = new QProgressDialog(QStringLiteral("Saving the segment…"), QStringLiteral("Cancel"), 0,
                                       kProgressSteps, window_);
    dialog->setObjectName(QStringLiteral("segmentProgress"));
    dialog->setWindowTitle(QStringLiteral("Save Segment"));
    dialog->setAccessibleName(QStringLiteral("Saving the segment"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMinimumDuration(0);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
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
        auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Save Segment"),
                                    QStringLiteral("The segment was not saved."), QMessageBox::Ok, window_);
        box->setInformativeText(QString::fromStdString(result.error));
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    }
    emit finished(result);
    deleteLater();
}
