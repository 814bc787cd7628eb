#include "ExportDialogs.h"

#include "ExportFormatChoice.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>

namespace {

QString qText(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

// What the translations of these texts are filed under.
struct ExportTrack {
    Q_DECLARE_TR_FUNCTIONS(ExportTrack)
};

}  // namespace

QFileDialog* makeExportSaveDialog(QWidget* parent, const ExportFormatChoice& remembered, const QString& directory,
                                  const QString& file) {
    auto* dialog = new QFileDialog(parent, ExportTrack::tr("Export Track"));
    dialog->setObjectName(QStringLiteral("exportTrackDialog"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    // The filters are format names and patterns, the same in every language.
    QStringList filters;
    for (const ExportFormatChoice& choice : exportFormatChoices()) filters << qText(choice.filter);
    dialog->setNameFilters(filters);
    dialog->selectNameFilter(qText(remembered.filter));
    dialog->setDefaultSuffix(qText(remembered.suffix));
    dialog->setDirectory(directory);
    dialog->selectFile(file);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The suffix follows the chosen format, so "trip" becomes trip.kml under KML.
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString& filter) {
        if (const ExportFormatChoice* choice = exportChoiceOfFilter(filter.toStdString()))
            dialog->setDefaultSuffix(qText(choice->suffix));
    });
    return dialog;
}

QProgressDialog* makeExportProgress(QWidget* parent, const QString& file, int clips) {
    auto* progress = new QProgressDialog(ExportTrack::tr("Exporting the track to %1…").arg(QFileInfo(file).fileName()), ExportTrack::tr("Cancel"),
                                         0, clips, parent);
    progress->setObjectName(QStringLiteral("exportProgress"));
    progress->setWindowTitle(ExportTrack::tr("Export Track"));
    progress->setAccessibleName(ExportTrack::tr("Export progress"));
    progress->setAutoClose(false);
    progress->setAutoReset(false);
    progress->setMinimumDuration(500);
    return progress;
}

QMessageBox* makeExportFailure(QWidget* parent, const QString& file, const QString& why) {
    auto* failure = new QMessageBox(
        QMessageBox::Warning, ExportTrack::tr("Export Track"),
        ExportTrack::tr("The track could not be written to %1: %2.").arg(QDir::toNativeSeparators(file), why), QMessageBox::Ok,
        parent);
    failure->setObjectName(QStringLiteral("exportFailure"));
    failure->setAttribute(Qt::WA_DeleteOnClose);
    return failure;
}
