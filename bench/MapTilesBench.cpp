// Decoding a map tile (on the UI thread for network tiles, so it must be short) and the memory the
// decoded-tile cache holds after panning across a city: 400 different tiles.

#include "TileDecoding.h"
#include "TileMemoryCache.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>

namespace {

// A tile that looks like a street map: streets, blocks and a few labels, saved as an 8-bit palette
// PNG as the public tile servers send them.
QByteArray streetMapTile(quint32 seed) {
    QRandomGenerator random(seed);
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(QColor(242, 239, 233));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 25; ++i) {
        painter.fillRect(random.bounded(256), random.bounded(256), 10 + random.bounded(40), 10 + random.bounded(40),
                         QColor(217, 208, 201));
    }
    painter.setPen(QPen(Qt::white, 6));
    for (int i = 0; i < 12; ++i) {
        painter.drawLine(random.bounded(256), random.bounded(256), random.bounded(256), random.bounded(256));
    }
    painter.setPen(Qt::darkGray);
    for (int i = 0; i < 4; ++i) {
        painter.drawText(random.bounded(200), random.bounded(250), QStringLiteral("Hauptstraße"));
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.convertToFormat(QImage::Format_Indexed8).save(&buffer, "PNG");
    return bytes;
}

void BM_DecodeTile(benchmark::State& state) {
    const QByteArray png = streetMapTile(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(decodeTile(png));
    }
    state.counters["png_bytes"] = double(png.size());
}
BENCHMARK(BM_DecodeTile)->Unit(benchmark::kMicrosecond);

void BM_CacheAfterPanning(benchmark::State& state) {
    std::vector<QImage> decoded;
    for (quint32 i = 0; i < 16; ++i) {
        decoded.push_back(decodeTile(streetMapTile(i)));
    }
    qsizetype bytes = 0;
    qsizetype tiles = 0;
    for (auto _ : state) {
        TileMemoryCache cache;
        for (int i = 0; i < 400; ++i) {
            cache.insert(TileId{15, 17000 + i % 20, 11000 + i / 20}, decoded[std::size_t(i) % decoded.size()]);
        }
        bytes = cache.bytesUsed();
        tiles = cache.tileCount();
    }
    state.counters["cache_MB"] = double(bytes) / (1024.0 * 1024.0);
    state.counters["tiles_kept"] = double(tiles);
}
BENCHMARK(BM_CacheAfterPanning)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);  // for the labels' fonts
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
