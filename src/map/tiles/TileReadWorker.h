#pragma once
// Lives on a reader thread: reads and decodes the tiles asked for, and reports each one back.

#include "TileId.h"
#include "TileReader.h"

#include <QImage>
#include <QObject>

#include <memory>

class TileReadWorker : public QObject {
    Q_OBJECT

public:
    explicit TileReadWorker(std::unique_ptr<TileReader> reader);

    // Both run on the reader thread.
    void read(const TileId& id);
    // Lets go of the storage (closes files and connections) on the thread that opened it.
    void close();

signals:
    // A null image: the storage has no such tile, or its bytes are no image.
    void tileRead(TileId id, QImage image);

private:
    std::unique_ptr<TileReader> reader_;
};
