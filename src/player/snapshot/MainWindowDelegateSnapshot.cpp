// The controller's snapshot command: the frame on screen is taken at once, with the facts of the
// sample on screen, then the user says where to save it and whether to stamp those facts on it.
// The save dialog does not block the window, and the movie plays on behind it.

#include "MainWindowDelegate.h"

#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"
#include "PngEncoder.h"
#include "SnapshotFacts.h"
#include "SnapshotSaveDialog.h"
#include "SnapshotStamp.h"

#include <QFile>
#include <QMainWindow>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace {

// The stamp, the encoding and the write go to a worker: a 4K picture takes a while to compress,
// and a slow disk or a network folder must not hold up the picture. Like the rest of the window,
// a failed write is not reported. Qt 6 renders text on a QImage in any thread.
void saveInBackground(const QString& file, std::shared_ptr<const RgbImage> frame, const SnapshotFacts& facts,
                      std::optional<StampFaces> stampFaces) {
    QThreadPool::globalInstance()->start([file, frame, facts, stampFaces] {
        std::optional<RgbImage> stamped;
        if (stampFaces) {
            stamped = *frame;
            SnapshotStamp::draw(*stamped, facts.stampItems(), *stampFaces);
        }
        const RgbImage& picture = stamped ? *stamped : *frame;
        const std::optional<std::vector<uint8_t>> png = PngEncoder::encode(picture, facts.textChunks());
        if (!png) return;
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) return;
        out.write(reinterpret_cast<const char*>(png->data()), static_cast<qint64>(png->size()));
    });
}

}  // namespace

void MainWindowDelegate::OnSnapshot(QObject* /*sender*/) {
    GPSPlayerEngine* player = engine();
    if (player == nullptr) return;
    std::optional<SnapshotFrame> shot = player->snapshotFrame();
    if (!shot) return;
    const SnapshotFacts facts(player->currentSample(), settings_.unitType() != 0, shot->source, shot->seconds);

    QFileDialog* dialog = makeSnapshotSaveDialog(outlets_.window, settings_);
    // The frame lives with the dialog: taken now, stamped and written only if the user accepts.
    auto frame = std::make_shared<const RgbImage>(std::move(shot->image));
    GPSUtils& settings = settings_;
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [frame, facts, &settings](const QString& file) {
        // The faces are looked up here: the LED face's registration belongs to the UI thread.
        std::optional<StampFaces> stampFaces;
        if (settings.stampSnapshots() && facts.hasSample()) stampFaces = StampFaces{LEDFont(12), QFont()};
        saveInBackground(file, frame, facts, stampFaces);
    });
    dialog->open();
}
