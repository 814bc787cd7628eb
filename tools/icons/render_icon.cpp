// render_icon SVG OUTDIR SIZE...: writes OUTDIR/<N>x<N>/apps/dashtrack.png for every size, the
// layout of a freedesktop icon theme. Runs at build time, headless: no fonts, so no platform.

#include "IconImage.h"

#include <QDir>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: render_icon SVG OUTDIR SIZE...\n");
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "render_icon: cannot read %s\n", argv[1]);
        return 1;
    }
    const QDir out(QString::fromLocal8Bit(argv[2]));
    for (int i = 3; i < argc; ++i) {
        bool ok = false;
        const int size = QString::fromLocal8Bit(argv[i]).toInt(&ok);
        if (!ok || size <= 0) {
            std::fprintf(stderr, "render_icon: not a size: %s\n", argv[i]);
            return 2;
        }
        const QString dir = QStringLiteral("%1x%1/apps").arg(size);
        const QString file = out.filePath(dir + QStringLiteral("/dashtrack.png"));
        if (!out.mkpath(dir) || !iconImage(renderer, size).save(file, "PNG")) {
            std::fprintf(stderr, "render_icon: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
