#pragma once
// The snapshot's save dialog: a PNG file name, and a check box to stamp the speed, place and time
// on the picture. The box starts as the settings say and writes each change back to them. The
// dialog is Qt's own (not the desktop's), which lets the box sit in its layout.

#include <QFileDialog>

class GPSUtils;

// Deleted when closed; settings must outlive it. Open it with open(), which does not block.
QFileDialog* makeSnapshotSaveDialog(QWidget* parent, GPSUtils& settings);
