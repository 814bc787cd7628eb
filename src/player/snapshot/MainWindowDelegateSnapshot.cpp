// The controller's snapshot command: the frame on screen is taken at once, then the user says where
// to save it. The save dialog does not block the window, and the movie plays on behind it.

#include "MainWindowDelegate.h"

#include "GPSPlayerView.h"

#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace {

// The write goes to a worker: a slow disk or a network folder must not hold up the picture.
// Like the rest of the window, a failed write is not reported.
void writeInBackground(const QString& file, std::shared_ptr<const std::vector<uint8_t>> png) {
    QThreadPool::globalInstance()->start([file, png] {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
        out.write(reinterpret_cast<const char*>(png->data()), static_cast<qint64>(png->size()));
    });
}

}  // namespace

void MainWindowDelegate::OnSnapshot(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    std::optional<std::vector<uint8_t>> png = player->snapshot();
    if (!png) return;

    auto* dialog = new QFileDialog(outlets_.window);
    dialog->setObjectName(QStringLiteral("snapshotDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(tr("PNG images (%1)").arg(QStringLiteral("*.png")));
    dialog->setDefaultSuffix(QStringLiteral("png"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The bytes live with the dialog: taken now, written only if the user accepts.
    auto bytes = std::make_shared<const std::vector<uint8_t>>(std::move(*png));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [bytes](const QString& file) { writeInBackground(file, bytes); });
    dialog->open();
}
