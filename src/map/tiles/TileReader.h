#pragma once
// Reads the bytes of tiles from local storage. Blocking: used only on a reader thread, and made,
// used and destroyed on that one thread's behalf (database connections are bound to a thread).

#include "TileId.h"

#include <QByteArray>

#include <optional>

class TileReader {
public:
    virtual ~TileReader() = default;
    // The tile's encoded bytes, or nothing if the storage does not have it.
    virtual std::optional<QByteArray> read(const TileId& id) = 0;
};
