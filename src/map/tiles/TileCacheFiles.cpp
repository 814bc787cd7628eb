#include "TileCacheFiles.h"

#include <QDirIterator>
#include <QFile>

int removeTileCacheFiles(const QString& directory) {
    if (directory.isEmpty()) return 0;
    int failures = 0;
    // Links are removed, never followed: the cache holds none, and nothing outside it may go.
    QDirIterator files(directory, QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (!QFile::remove(files.next())) ++failures;
    }
    return failures;
}
