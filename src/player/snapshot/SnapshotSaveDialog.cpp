#include "SnapshotSaveDialog.h"

#include "GPSUtils.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>

namespace {

// What the translations of these texts are filed under.
struct SnapshotSaveDialog {
    Q_DECLARE_TR_FUNCTIONS(SnapshotSaveDialog)
};

}  // namespace

QFileDialog* makeSnapshotSaveDialog(QWidget* parent, GPSUtils& settings) {
    auto* dialog = new QFileDialog(parent);
    dialog->setObjectName(QStringLiteral("snapshotDialog"));
    dialog->setWindowTitle(SnapshotSaveDialog::tr("Save Snapshot"));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(SnapshotSaveDialog::tr("PNG image (*.png)"));
    dialog->setDefaultSuffix(QStringLiteral("png"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);

    auto* stamp = new QCheckBox(SnapshotSaveDialog::tr("Stamp speed, place and time"), dialog);
    stamp->setObjectName(QStringLiteral("stampCheckBox"));
    stamp->setAccessibleName(SnapshotSaveDialog::tr("Stamp speed, place and time"));
    stamp->setAccessibleDescription(
        SnapshotSaveDialog::tr("Draws the speed, latitude, longitude, date and time across the bottom of the saved picture"));
    stamp->setChecked(settings.stampSnapshots());
    QObject::connect(stamp, &QCheckBox::toggled, dialog, [&settings](bool on) { settings.setStampSnapshots(on); });
    // Qt's file dialog lays itself out in a grid: the box goes on a row of its own under it.
    if (auto* grid = qobject_cast<QGridLayout*>(dialog->layout())) {
        grid->addWidget(stamp, grid->rowCount(), 0, 1, grid->columnCount());
    }
    return dialog;
}
