#pragma once
// Emptying the HTTP tile cache on the disk. Blocking: run it off the UI thread.

#include <QString>

// Removes every file under the directory and keeps the folders, so that a disk cache still
// pointing there goes on working. Returns the number of files that could not be removed.
int removeTileCacheFiles(const QString& directory);
