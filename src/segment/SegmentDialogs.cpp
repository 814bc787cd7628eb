#include "SegmentDialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>

namespace {

// What the translations of these texts are filed under.
struct SaveSegment {
    Q_DECLARE_TR_FUNCTIONS(SaveSegment)
};

}  // namespace

QFileDialog* makeSegmentSaveDialog(QWidget* parent, const QString& suffix, const QString& directory, const QString& file) {
    auto* dialog = new QFileDialog(parent);
    dialog->setObjectName(QStringLiteral("segmentDialog"));
    dialog->setWindowTitle(SaveSegment::tr("Save Segment"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    // Both containers are offered: sound that MP4 cannot hold (PCM) is kept in a MOV.
    const QString mp4Filter = SaveSegment::tr("MPEG-4 movie (*.mp4)");
    const QString movFilter = SaveSegment::tr("QuickTime movie (*.mov)");
    dialog->setNameFilters({mp4Filter, movFilter});
    dialog->selectNameFilter(suffix == QLatin1String("mov") ? movFilter : mp4Filter);
    dialog->setDefaultSuffix(suffix);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, [dialog, movFilter](const QString& filter) {
        dialog->setDefaultSuffix(filter == movFilter ? QStringLiteral("mov") : QStringLiteral("mp4"));
    });
    dialog->setDirectory(directory);
    dialog->selectFile(file);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

QProgressDialog* makeSegmentProgress(QWidget* parent, int steps) {
    auto* dialog = new QProgressDialog(SaveSegment::tr("Saving the segment…"), SaveSegment::tr("Cancel"), 0, steps, parent);
    dialog->setObjectName(QStringLiteral("segmentProgress"));
    dialog->setWindowTitle(SaveSegment::tr("Save Segment"));
    dialog->setAccessibleName(SaveSegment::tr("Saving the segment"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMinimumDuration(0);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    return dialog;
}

QMessageBox* makeSegmentFailure(QWidget* parent, const QString& why) {
    auto* box = new QMessageBox(QMessageBox::Warning, SaveSegment::tr("Save Segment"), SaveSegment::tr("The segment was not saved."),
                                QMessageBox::Ok, parent);
    box->setObjectName(QStringLiteral("segmentFailure"));
    box->setInformativeText(why);
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}
