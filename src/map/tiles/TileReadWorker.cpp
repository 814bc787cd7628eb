#include "TileReadWorker.h"

#include "TileDecoding.h"

TileReadWorker::TileReadWorker(std::unique_ptr<TileReader> reader) : reader_(std::move(reader)) {}

void TileReadWorker::read(const TileId& id) {
    QImage image;
    if (reader_) {
        if (const std::optional<QByteArray> bytes = reader_->read(id)) {
            image = decodeTile(*bytes);
        }
    }
    emit tileRead(id, image);
}

void TileReadWorker::close() {
    reader_.reset();
}
