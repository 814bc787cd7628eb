#pragma once
// The dialogs of Export Track, made in one place so that each says its texts in the window's
// language: the save dialog, the progress with Cancel, and the failure message.

#include <QString>

class QFileDialog;
class QMessageBox;
class QProgressDialog;
class QWidget;
struct ExportFormatChoice;

// A save dialog offering every format, with `remembered` chosen and `file` proposed in `directory`.
// Deleted when closed.
QFileDialog* makeExportSaveDialog(QWidget* parent, const ExportFormatChoice& remembered, const QString& directory,
                                  const QString& file);
// Counts clips from 0 to `clips`; it appears only if the export lasts over half a second.
QProgressDialog* makeExportProgress(QWidget* parent, const QString& file, int clips);
// "could not be written to FILE: WHY." Deleted when closed.
QMessageBox* makeExportFailure(QWidget* parent, const QString& file, const QString& why);
