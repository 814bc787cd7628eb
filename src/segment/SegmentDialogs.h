#pragma once
// The dialogs of Save Segment, made in one place so that each says its texts in the window's
// language: the save dialog, the progress with Cancel, and the failure message.

#include <QString>

class QFileDialog;
class QMessageBox;
class QProgressDialog;
class QWidget;

// A save dialog offering MP4 and MOV, `suffix`'s ("mp4" or "mov") chosen, proposing `file` in
// `directory`. Deleted when closed.
QFileDialog* makeSegmentSaveDialog(QWidget* parent, const QString& suffix, const QString& directory, const QString& file);
// Counts from 0 to `steps`. Deleted when closed.
QProgressDialog* makeSegmentProgress(QWidget* parent, int steps);
// "The segment was not saved.", with `why` below it. Deleted when closed.
QMessageBox* makeSegmentFailure(QWidget* parent, const QString& why);
